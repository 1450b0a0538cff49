#pragma once

#include <QSplitter>
#include <optional>

#include "design/formula_edits.h"

namespace kalvane {

class NodeTree;
class ReportList;

/// The catalogue to choose materials from: tree `Tvw` of makers and series, and list `lvw` of the selected
/// node's materials.
class MaterialChooser : public QSplitter {
    Q_OBJECT

  public:
    /// `screen` stands behind its messages.
    explicit MaterialChooser(QWidget* screen);

    /// Throws StoreError.
    void Load();
    /// The selected material; without one says so.
    std::optional<Material> SelectedOrTell() const;

  Q_SIGNALS:
    /// A double click on a material.
    void Chosen();

  private:
    void ShowMaterials();

    NodeTree* tree_;
    ReportList* list_;
    MaterialClass class_ = MaterialClass::Profile;  ///< of what is listed
};

}  // namespace kalvane
