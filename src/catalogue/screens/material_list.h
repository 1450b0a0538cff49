#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"

class QLineEdit;

namespace kalvane {

class ReportList;

/// The materials of one node, with a box that leaves only the rows in sight that hold a text.
class MaterialList : public QWidget {
    Q_OBJECT

  public:
    explicit MaterialList(QWidget* screen);

    /// Shows the materials of a node; the columns are those of their class.
    void ShowNode(const CatalogueClass& materialClass, const std::string& number);
    /// Drops rows and columns.
    void Clear();
    /// Reads the materials again.
    void Reload();

    ReportList* List() const { return list_; }
    QLineEdit* FilterBox() const { return filter_; }
    /// Null while there are no columns.
    const CatalogueClass* Class() const { return class_; }
    const std::string& Node() const { return node_; }

    MaterialTexts Material(int row) const;
    /// Adds or replaces a row by what the store has for a number; -1 adds one. It becomes the selected one.
    void ShowMaterial(int row, const std::string& number);
    /// Those in sight.
    std::vector<MaterialTexts> Visible() const;

  private:
    void Filter();

    QLineEdit* filter_;
    ReportList* list_;
    const CatalogueClass* class_ = nullptr;
    std::string node_;
};

}  // namespace kalvane
