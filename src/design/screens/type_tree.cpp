#include "design/screens/type_tree.h"

#include <QDropEvent>
#include <QMouseEvent>

#include "design/window_type_tree.h"

namespace kalvane {
namespace {
constexpr int kExpandMilliseconds = 600;  // a closed branch opens under a drag that waits
}  // namespace

TypeTree::TypeTree(const QString& name, QWidget* parent) : NodeTree(name, kWindowTypeKind, parent) {
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setAutoExpandDelay(kExpandMilliseconds);
}

void TypeTree::mousePressEvent(QMouseEvent* event) {
    NodeTree::mousePressEvent(event);
    QTreeWidgetItem* node = itemAt(event->pos());
    const bool isType = event->button() == Qt::LeftButton && node != nullptr && IsLeaf(node);
    dragNode_ = isType ? node : nullptr;
}

void TypeTree::mouseReleaseEvent(QMouseEvent* event) {
    NodeTree::mouseReleaseEvent(event);
    dragNode_ = nullptr;
}

void TypeTree::startDrag(Qt::DropActions) {
    if (dragNode_ == nullptr) return;
    NodeTree::startDrag(Qt::CopyAction);
    dragNode_ = nullptr;
}

QTreeWidgetItem* TypeTree::TargetAt(const QPoint& place) const {
    QTreeWidgetItem* node = itemAt(place);
    const bool takes = dragNode_ != nullptr && node != nullptr && Kind(node) == kWindowSeriesKind &&
                       node != dragNode_->parent();
    return takes ? node : nullptr;
}

void TypeTree::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(dragNode_ != nullptr);
}

void TypeTree::dragMoveEvent(QDragMoveEvent* event) {
    NodeTree::dragMoveEvent(event);  // scrolls and opens branches
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(TargetAt(event->position().toPoint()) != nullptr);
}

void TypeTree::dropEvent(QDropEvent* event) {
    QTreeWidgetItem* type = dragNode_;
    QTreeWidgetItem* series = TargetAt(event->position().toPoint());
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(series != nullptr);
    if (series == nullptr) return;
    // A question must not come up inside the drag.
    QMetaObject::invokeMethod(
        this, [this, type, series] { Q_EMIT Dropped(type, series); }, Qt::QueuedConnection);
}

}  // namespace kalvane
