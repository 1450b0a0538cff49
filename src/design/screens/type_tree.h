#pragma once

#include "ui/node_tree.h"

namespace kalvane {

/// The tree of window types. A type can be dragged with the left mouse button and dropped on a series.
class TypeTree : public NodeTree {
    Q_OBJECT

  public:
    TypeTree(const QString& name, QWidget* parent);

  Q_SIGNALS:
    /// A type was dropped on a series that it does not lie in. Comes when the drag is over.
    void Dropped(QTreeWidgetItem* type, QTreeWidgetItem* series);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    /// The series under a place that takes the dragged type; null when there is none.
    QTreeWidgetItem* TargetAt(const QPoint& place) const;

    QTreeWidgetItem* dragNode_ = nullptr;
};

}  // namespace kalvane
