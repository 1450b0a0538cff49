#include "design/screens/type_picture.h"

#include "design/window_type_tree.h"
#include "session/app_state.h"
#include "ui/node_tree.h"

namespace kalvane {

void TypePicture::ShowType(const std::string& number) {
    Clear();
    const std::string drawing = ReadWindowType(App().Main(), number, SharedFieldSlots()).drawing;
    if (!drawing.empty()) ShowFromLibrary(App().Main(), drawing, Names::Shown, Extent::Outer);
}

void TypePicture::ShowNode(const QTreeWidgetItem* node) {
    Clear();
    if (node != nullptr && IsWindowType(NodeTree::Tag(node))) ShowType(NodeTree::Id(node));
}

}  // namespace kalvane
