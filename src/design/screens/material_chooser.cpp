#include "design/screens/material_chooser.h"

#include "design/materials.h"
#include "session/app_state.h"
#include "ui/guard.h"
#include "ui/node_tree.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr const char* kLeaves = "2345";  // all nodes but makers of profiles list materials
constexpr int kHiddenColumns = 2;

QStringList ToQtList(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) list << ToQt(text);
    return list;
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
    tree_->Show(LoadMaterialTree(App().Main()));
}

void MaterialChooser::ShowMaterials() {
    const QTreeWidgetItem* node = tree_->Selected();
    const MaterialList materials =
        node == nullptr ? MaterialList() : LoadMaterials(App().Main(), NodeTree::Tag(node));
    class_ = materials.materialClass;
    QList<QStringList> rows;
    for (const auto& row : materials.rows) rows << ToQtList(row);
    list_->SetColumns(ToQtList(materials.headings), materials.headings.empty() ? 0 : kHiddenColumns);
    list_->AddRows(rows);
}

std::optional<Material> MaterialChooser::SelectedOrTell() const {
    const int row = list_->SelectedOrTell(QStringLiteral("没有选取所需加入的材料"));
    if (row < 0) return std::nullopt;
    std::vector<std::string> texts;
    for (const QString& text : list_->Row(row)) texts.push_back(FromQt(text));
    return MaterialOf(class_, texts);
}

}  // namespace kalvane
