#pragma once

#include <QIcon>
#include <QTreeWidget>
#include <string>
#include <vector>

#include "store/tree_node.h"

namespace kalvane {

/// A tree of tagged nodes. Nodes of the leaf kinds carry the picture of a leaf, all others that of a folder.
/// The tree opens where it was left: the open branches, and the place of the keyboard (nothing is selected).
class NodeTree : public QTreeWidget {
    Q_OBJECT

  public:
    /// `leafKinds` are the first characters of the tags of leaves.
    NodeTree(const QString& name, const std::string& leafKinds, QWidget* parent = nullptr);

    /// Replaces all nodes. A single one at the top is opened.
    void Show(const std::vector<TreeNode>& nodes);
    /// Adds a node with its children behind the others of `parent`; null stands for the top.
    QTreeWidgetItem* Add(const TreeNode& node, QTreeWidgetItem* parent = nullptr);
    /// Makes a node the last one of another.
    void Move(QTreeWidgetItem* node, QTreeWidgetItem* parent);

    static std::string Tag(const QTreeWidgetItem* node);
    static std::string Kind(const QTreeWidgetItem* node);
    static std::string Id(const QTreeWidgetItem* node);
    bool IsLeaf(const QTreeWidgetItem* node) const;

    /// The first node with that tag; null when there is none.
    QTreeWidgetItem* Find(const std::string& tag) const;
    /// Null when nothing is selected.
    QTreeWidgetItem* Selected() const;
    /// As Selected; with no selection says `complaint`.
    QTreeWidgetItem* SelectedOrTell(const QString& complaint);

  protected:
    void hideEvent(QHideEvent* event) override;

  private:
    /// An item with its children, not yet in the tree.
    QTreeWidgetItem* MakeItem(const TreeNode& node) const;
    QString MemoryKey() const;
    void Restore();

    std::string leafKinds_;
    QIcon leaf_;
    QIcon folder_;
};

}  // namespace kalvane
