#include "drawing/screens/drawing_box.h"

#include "drawing/screens/window_picture.h"

namespace kalvane {

DrawingBox::DrawingBox(const QString& name, QWidget* parent) : PictureBox(name, parent), notice_(this) {}

PrimitiveList<TextItem> DrawingBox::ShowFromLibrary(Connection& connection, std::string_view number,
                                                    Names names, Extent extent) {
    Clear();
    const auto drawing = std::make_shared<MCPicture>(notice_);
    drawing->OpenFileEX(connection, number);
    Show(drawing, names, extent);
    return drawing->Strings();
}

void DrawingBox::ShowFile(const std::filesystem::path& file) {
    Clear();
    const auto drawing = std::make_shared<MCPicture>(notice_);
    drawing->OpenFileMC(file);
    Show(drawing, Names::Shown, Extent::Inner);
}

void DrawingBox::Show(const std::shared_ptr<const MCPicture>& drawing, Names names, Extent extent) {
    SetPersistent([drawing, names, extent](PainterTarget& target, Box inner) {
        Box box = inner;
        if (extent == Extent::Outer) {
            constexpr float kBothBorders = 2 * kBorderTwips;
            box.x2 += kBothBorders;
            box.y2 += kBothBorders;
        }
        if (names == Names::Shown) {
            drawing->OutMC(target, box);
        } else {
            drawing->OutMCNoStr(target, box);
        }
    });
}

void DrawingBox::ShowLabels(std::vector<WindowLabel> labels, int selected) {
    SetTransient([labels = std::move(labels), selected](PainterTarget& target, Box inner) {
        PaintLabelValues(target, labels, inner, selected);
    });
}

}  // namespace kalvane
