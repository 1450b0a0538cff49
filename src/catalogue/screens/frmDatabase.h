#pragma once

#include <functional>

#include "ui/entry_screen.h"

class QPushButton;

namespace kalvane {

class CatalogueTree;
class MaterialList;

/// The catalogue: makers and series of materials, and the materials of the selected one.
class frmDatabase : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmDatabase(QWidget* parent);

  private:
    void LayOut();
    QPushButton* Command(const char* name, const char* caption, const char* toolTip,
                         std::function<void()> work);

    void ShowNode();
    void AddMaterialRow();
    void EditMaterial();
    void DeleteMaterialRow();
    void ShowUses();
    void SetAllPrices();

    /// Runs a command on all materials of the list; says so when there is none.
    void OnList(void (*command)(QWidget* screen, MaterialList& list, const QString& title));
    /// "…" of the node whose materials are listed, with its maker before it.
    QString ListTitle() const;
    /// What deleting or renaming `code` means for formulas; empty when none quotes it.
    QString UsesNote(const std::string& code) const;

    CatalogueTree* tvw_;
    MaterialList* materials_;
};

}  // namespace kalvane
