#pragma once

#include <memory>
#include <string_view>

#include "drawing/mcpicture.h"
#include "drawing/window_label.h"
#include "ui/message_notice.h"
#include "ui/picture_box.h"

namespace kalvane {

/// A picture box that shows a drawing, stretched over the whole of it.
class DrawingBox : public PictureBox {
    Q_OBJECT

  public:
    /// Whether the text items, which are the names of the labels, are painted.
    enum class Names { Shown, Hidden };
    /// What the drawing fills: the box within its border, or with it.
    enum class Extent { Inner, Outer };

    explicit DrawingBox(const QString& name, QWidget* parent = nullptr);

    /// Shows a drawing of the library and returns its text items. A drawing that cannot be opened leaves the
    /// box empty. Throws StoreError or NumericError.
    PrimitiveList<TextItem> ShowFromLibrary(Connection& connection, std::string_view number, Names names,
                                            Extent extent = Extent::Inner);
    /// Shows a drawing file with its text items; errors as MCPicture::OpenFileMC.
    void ShowFile(const std::filesystem::path& file);
    void Clear() { SetPersistent({}); }

    /// Prints the values of a project window's labels over the drawing; the one with the index `selected` is
    /// red, -1 for none.
    void ShowLabels(std::vector<WindowLabel> labels, int selected = -1);

  private:
    void Show(const std::shared_ptr<const MCPicture>& drawing, Names names, Extent extent);

    MessageNotice notice_;
};

}  // namespace kalvane
