#include "ui/page_output.h"

#include "numeric/error.h"
#include "platform/files.h"
#include "support/screens/screen_kit.h"
#include "ui/page_view.h"

namespace kalvane::test {
namespace {

using PageOutput = ScreenTest;

int CountOf(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

void PaintThreePages(PageTarget& page) {
    for (int i = 1; i <= 3; ++i) {
        if (i > 1) page.NewPage();
        page.DrawText(100, 100, "第" + std::to_string(i) + "页");
        page.DrawLine(0, 0, page.Width(), page.Height());
        page.FillBox({0, 5000, 1000, 6000}, {200, 0, 0});
    }
}

TEST_F(PageOutput, WithoutAPrinterThereArePreviewAndPdf) {
    dialogs_.files = {QString(), InFolder("表.pdf"), InFolder("页.pdf")};
    bool wasPutOut = false;
    ModalScript()
        .On("frmPreview",
            [&](QDialog& preview) {
                EXPECT_EQ(preview.windowTitle(), "打印预览->材料表");
                EXPECT_EQ(Find<QComboBox>(&preview, "CmbPrinter")->currentText(), "没有安装打印机");
                EXPECT_FALSE(Find<QPushButton>(&preview, "CmdPrint")->isEnabled());
                Press(preview, "CmdPdf");  // cancelled
                EXPECT_EQ(Find<QLabel>(&preview, "LblTold")->text(), QString());
                Press(preview, "CmdPdf");
                EXPECT_EQ(Find<QLabel>(&preview, "LblTold")->text(),
                          QStringLiteral("已保存：") + InFolder("表.pdf"));
                Find<QSpinBox>(&preview, "TxtFirst")->setValue(2);
                Press(preview, "CmdPdf");
            })
        .Run([&] { wasPutOut = PrintDocument(nullptr, "材料表", {}, PaintThreePages); });
    EXPECT_TRUE(wasPutOut);
    const std::string pdf = ReadFile(folder_ / "表.pdf");
    EXPECT_EQ(CountOf(pdf, "/Type /Page\n"), 3);
    EXPECT_EQ(CountOf(ReadFile(folder_ / "页.pdf"), "/Type /Page\n"), 2) << "pages 2 and 3";
    EXPECT_EQ(CountOf(pdf, "/FontFile"), 1);                       // the glyphs are in the file
    EXPECT_NE(pdf.find("/MediaBox [0 0 595"), std::string::npos);  // A4 upright
}

TEST_F(PageOutput, NothingPaintedShowsNothingAndAFailureReachesTheCaller) {
    EXPECT_FALSE(PrintDocument(nullptr, {}, {}, [](PageTarget&) {}));
    EXPECT_THROW(PrintDocument(nullptr, {}, {}, [](PageTarget&) { throw StoreError("坏"); }), StoreError);
    EXPECT_THROW(PageDocument({}, {}, PaintThreePages).WritePdf(folder_ / "none" / "a.pdf"), FileError);
    EXPECT_THROW(PageDocument({}, {}, PaintThreePages).Print("没有", 1, 0, 0), Error);
}

TEST_F(PageOutput, ThePreviewShowsEachPageAtItsScale) {
    const PageDocument document("表", {}, PaintThreePages);
    PageView view(document);
    view.resize(1000, 900);
    view.show();
    view.SetZoom(PageView::Fit::None, 1);
    view.ShowPage(2);
    EXPECT_EQ(view.CurrentPage(), 2);
    const QImage image = view.viewport()->grab().toImage();
    // The sheet is centred and starts 12 pixels down; its margins are 8 mm, and 15 twips are a pixel. The box
    // spans 5000 to 6000 twips.
    const int left = (view.viewport()->width() - 794) / 2;
    const auto at = [&](int x, int y) { return image.pixelColor(left + 30 + x, 12 + 30 + y); };
    EXPECT_EQ(at(10, 332), QColor(Qt::white));
    EXPECT_EQ(at(10, 335), QColor(200, 0, 0));
    EXPECT_EQ(at(10, 398), QColor(200, 0, 0));
    EXPECT_EQ(at(10, 401), QColor(Qt::white));
}

}  // namespace
}  // namespace kalvane::test
