#include "catalogue/screens/catalogue_tree.h"

#include "catalogue/material_uses.h"
#include "catalogue/screens/catalogue_forms.h"
#include "catalogue/screens/frmXLOption.h"
#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/dialogs.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr const char* kLeafKinds = "2345";  // the nodes that list materials

}  // namespace

QString QuotedBy(int types) {
    return types == 0 ? QString() : QStringLiteral("\n有 %1 个窗型的公式引用它。").arg(types);
}

CatalogueTree::CatalogueTree(QWidget* screen)
    : NodeTree(QStringLiteral("Tvw"), kLeafKinds, screen), screen_(screen) {}

void CatalogueTree::Load() {
    Show(LoadCatalogueTree(App().Main()));
}

void CatalogueTree::AddNode() {
    QTreeWidgetItem* node = Selected();
    const std::string kind = node == nullptr ? std::string() : NodeTree::Kind(node);
    if (kind == kSeriesKind) return AddSeriesNode(node->parent());
    if (kind != kProfileMakerKind) return AddMakerNode();
    frmXLOption option(screen_);
    if (option.exec() != QDialog::Accepted) return;
    if (option.IsSeries()) return AddSeriesNode(node);
    AddMakerNode();
}

void CatalogueTree::AddMakerNode() {
    InputMaker(screen_, QStringLiteral("添加->厂家"), {"", "-", "-", "-", ""}, [this](const Maker& maker) {
        const std::string number = AddMaker(App().Main(), maker);
        scrollToItem(Add({maker.name, MakeKey(maker.category, number)}));
    });
}

void CatalogueTree::AddSeriesNode(QTreeWidgetItem* maker) {
    InputSeries(screen_, QStringLiteral("添加->系列"), {}, [&](const std::string& name) {
        const std::string number = AddSeries(App().Main(), NodeTree::Id(maker), name);
        Add({name, MakeKey(kSeriesKind, number)}, maker);
        maker->setExpanded(true);
    });
}

void CatalogueTree::EditNode() {
    QTreeWidgetItem* node = SelectedOrTell(QStringLiteral("无选取所需编辑的对象！"));
    if (node == nullptr) return;
    const std::string number = NodeTree::Id(node);
    const auto rename = [node](const std::string& name) { node->setText(0, ToQt(name)); };
    if (NodeTree::Kind(node) == kSeriesKind) {
        InputSeries(screen_, QStringLiteral("编辑->系列"), node->text(0), [&](const std::string& name) {
            RenameSeries(App().Main(), number, name);
            rename(name);
        });
        return;
    }
    InputMaker(screen_, QStringLiteral("编辑->厂家"), LoadMaker(App().Main(), number),
               [&](const Maker& maker) {
                   UpdateMaker(App().Main(), number, maker);
                   rename(maker.name);
               });
}

bool CatalogueTree::DeleteNode() {
    QTreeWidgetItem* node = SelectedOrTell(QStringLiteral("无选取所要删除的对象！"));
    if (node == nullptr) return false;
    const std::string tag = NodeTree::Tag(node);
    const QString question = QStringLiteral("确认要删除该记录吗？(%1)").arg(node->text(0));
    if (!AskToLose(screen_, question + QuotedBy(TypesThatQuote(App().Main(), tag)))) return false;
    DeleteCatalogueNode(App().Main(), tag);
    setCurrentItem(nullptr);
    delete node;
    setCurrentItem(nullptr);
    return true;
}

}  // namespace kalvane
