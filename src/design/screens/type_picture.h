#pragma once

#include <string>

#include "drawing/screens/drawing_box.h"

class QTreeWidgetItem;

namespace kalvane {

/// The drawing of a window type, with the names of its labels, over the whole box.
class TypePicture : public DrawingBox {
    Q_OBJECT

  public:
    using DrawingBox::DrawingBox;

    /// Reads the type (门窗.编号) to the shared slots and shows its drawing; nothing when it has none. Throws
    /// StoreError or NumericError.
    void ShowType(const std::string& number);
    /// The drawing of a node of the tree of types; nothing for any other node, or null.
    void ShowNode(const QTreeWidgetItem* node);
};

}  // namespace kalvane
