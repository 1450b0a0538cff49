#pragma once

#include "ui/node_tree.h"

namespace kalvane {

/// "\n有 3 个窗型的公式引用它。" for a question before a code is lost; empty when none does.
QString QuotedBy(int types);

/// The makers of materials and the series of profiles, with the commands on them.
class CatalogueTree : public NodeTree {
    Q_OBJECT

  public:
    /// Dialogs stand over `screen`.
    explicit CatalogueTree(QWidget* screen);

    void Load();
    /// Adds a maker or a series, as the selected node says.
    void AddNode();
    void EditNode();
    /// Deletes the selected node with all below it, after a question; nothing is selected then. False when it
    /// was not deleted.
    bool DeleteNode();

  private:
    void AddMakerNode();
    void AddSeriesNode(QTreeWidgetItem* maker);

    QWidget* screen_;
};

}  // namespace kalvane
