#pragma once

#include <map>

#include "project/composite_windows.h"
#include "ui/node_tree.h"

namespace kalvane {

/// The members of a composite window, all on one level, the main drawing among them.
class MemberTree : public NodeTree {
    Q_OBJECT

  public:
    MemberTree(const QString& name, QWidget* parent);

    /// Adds a node behind the others; nothing is selected by it.
    QTreeWidgetItem* AddMember(const CompositeMember& member);
    /// Adds one whose name is `name` and the next number.
    QTreeWidgetItem* AddNumbered(const std::string& name, const std::string& tag);
    /// The first node of a main drawing; null when there is none.
    QTreeWidgetItem* MainNode() const;
    /// Takes a node away; nothing is selected by it.
    void Remove(QTreeWidgetItem* node);
    /// Selects a node without telling of it.
    void SelectQuietly(QTreeWidgetItem* node);

    static CompositeMember Member(const QTreeWidgetItem* node);
    /// In the order of the tree.
    std::vector<CompositeMember> Members() const;

    /// Shows which nodes are at fault, by their place, and why; the others are no longer marked.
    void MarkFaults(const std::map<std::size_t, std::string>& faults);
};

}  // namespace kalvane
