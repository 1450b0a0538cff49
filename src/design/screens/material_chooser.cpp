#include "design/screens/material_chooser.h"

#include "catalogue/catalogue.h"
#include "numeric/assertion.h"
#include "session/app_state.h"
#include "ui/guard.h"
#include "ui/node_tree.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr const char* kLeaves = "2345";  // all nodes but makers of profiles list materials
constexpr int kHiddenColumns = 2;
constexpr int kName = 0;
constexpr int kCode = 1;  // not of a panel
constexpr int kUnit = 2;  // of a fitting

QStringList HeadingsOf(const CatalogueClass& materials) {
    QStringList headings;
    for (const MaterialColumn& column : materials.columns) headings << QString::fromUtf8(column.heading);
    return headings << QString::fromUtf8(materials.parentColumn) << QStringLiteral("编号");
}

/// The class of materials as formulas know it.
MaterialClass ClassOf(const CatalogueClass& materials) {
    for (const MaterialClass each : kListClasses) {
        if (std::string_view(materials.formulaTable) == FormulaTableOf(each).name) return each;
    }
    KALVANE_ASSERT(false);
}

}  // namespace

MaterialChooser::MaterialChooser(QWidget* screen)
    : QSplitter(Qt::Horizontal, screen),
      tree_(new NodeTree(QStringLiteral("Tvw"), kLeaves, this)),
      list_(new ReportList(QStringLiteral("lvw"), {}, this)) {
    setChildrenCollapsible(false);
    setStretchFactor(1, 1);
    setSizes({190, 420});
    OnSignal(tree_, &NodeTree::itemSelectionChanged, screen, [this] { ShowMaterials(); });
    connect(list_, &ReportList::itemDoubleClicked, this, &MaterialChooser::Chosen);
}

void MaterialChooser::Load() {
    tree_->Show(LoadCatalogueTree(App().Main()));
}

void MaterialChooser::ShowMaterials() {
    const QTreeWidgetItem* node = tree_->Selected();
    const CatalogueClass* materials = node == nullptr ? nullptr : ClassOfKind(NodeTree::Kind(node));
    if (materials == nullptr) return list_->SetColumns({});
    class_ = ClassOf(*materials);
    QList<QStringList> rows;
    for (const MaterialTexts& texts : LoadMaterials(App().Main(), *materials, NodeTree::Id(node))) {
        QStringList row;
        for (const std::string& text : texts) row << ToQt(text);
        rows << row;
    }
    list_->SetColumns(HeadingsOf(*materials), kHiddenColumns);
    list_->AddRows(rows);
}

std::optional<Material> MaterialChooser::SelectedOrTell() const {
    const int row = list_->SelectedOrTell(QStringLiteral("没有选取所需加入的材料"));
    if (row < 0) return std::nullopt;
    Material material{class_, FromQt(list_->Text(row, kName)), {}, {}};
    if (class_ != MaterialClass::Panel) material.code = FromQt(list_->Text(row, kCode));
    if (class_ == MaterialClass::Fitting) material.unit = FromQt(list_->Text(row, kUnit));
    return material;
}

}  // namespace kalvane
