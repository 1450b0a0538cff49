#include "drawing/recorders.h"
#include "drawing/screens/window_picture.h"
#include "support/temp_folder.h"
#include "ui/picture_box.h"

namespace kalvane::test {
namespace {

/// Pixels of a rectangle that are not white, or that are red rather than grey.
int Ink(const QImage& image, QRect part, bool redOnly = false) {
    int count = 0;
    part &= image.rect();
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            const bool red = colour.red() > 200 && colour.green() < 128 && colour.blue() < 128;
            if (redOnly ? red : colour.lightness() < 128) ++count;
        }
    }
    return count;
}

TEST(WindowPicture, TheImageShowsStrokesAndValuesInTheFramesShape) {
    RecordingNotice notice;
    CPictire drawing(notice);
    drawing.AddLine({{0, 0}, {9495, 0}});
    drawing.AddLine({{4747.5F, 0}, {4747.5F, 7935}});
    drawing.AddString({{200, 2000}, "名称"});  // label names are not painted
    MCPicture picture(notice);
    const TempFolder folder;
    drawing.SavePicture(folder / "a.MC");
    picture.OpenFileMC(folder / "a.MC");

    // 1000 wide leaves 940 for the frame less its margins, but 529 high only 94 %: scale 0.94 / 15, so the
    // frame is 595 by 497 and starts at (202, 15); its middle is at x = 202 + 297.
    const WindowLabel labels[] = {{1000, 4000, "1500"}, {6000, 4000, ""}};
    const QImage image = WindowPictureImage(picture, labels, {1000, 529});
    EXPECT_EQ(image.size(), QSize(1000, 529));
    EXPECT_EQ(Ink(image, {499, 20, 1, 480}), 480);
    EXPECT_EQ(Ink(image, {210, 15, 500, 1}), 500);
    EXPECT_EQ(Ink(image, {0, 0, 201, 529}), 0);
    EXPECT_EQ(Ink(image, {800, 0, 200, 529}), 0);
    // The value stands right of and below (202 + 62.7, 15 + 250.7).
    EXPECT_GT(Ink(image, {264, 265, 40, 18}), 20);
    EXPECT_EQ(Ink(image, {203, 17, 290, 248}), 0);
    EXPECT_EQ(Ink(image, {203, 285, 290, 200}), 0);
}

TEST(PictureBox, KeepsThePersistentLayerUnderTheTransientOne) {
    PictureBox box("PicMC");
    box.resize(300, 200);
    int runs = 0;
    box.SetPersistent([&](PainterTarget& target, Box inner) {
        ++runs;
        target.DrawLine(0, 1500, inner.x2, 1500);  // at pixel 100
    });
    const auto row = [&](int y) { return Ink(box.grab().toImage(), {50, y, 200, 3}); };
    const int line = box.contentsRect().top() + 99;
    EXPECT_EQ(row(line), 200);

    const WindowLabel labels[] = {{0, 0, "国国国"}, {0, 7000, "国国国"}};
    box.SetTransient([&](PainterTarget& target, Box inner) { PaintLabelValues(target, labels, inner, 1); });
    const QImage both = box.grab().toImage();
    EXPECT_GT(Ink(both, {0, 0, 300, 50}), 20);
    EXPECT_EQ(Ink(both, {0, 0, 300, 50}, true), 0);
    EXPECT_GT(Ink(both, {0, 150, 300, 50}, true), 20);
    EXPECT_EQ(runs, 1);  // not painted again for the transient layer

    box.SetTransient({});
    box.resize(400, 250);
    box.grab();
    EXPECT_EQ(runs, 2);
    box.SetPersistent({});
    EXPECT_EQ(row(line), 0);
}

}  // namespace
}  // namespace kalvane::test
