#include "catalogue/screens/frmDatabase.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>

#include "catalogue/material_uses.h"
#include "catalogue/screens/catalogue_forms.h"
#include "catalogue/screens/catalogue_tree.h"
#include "catalogue/screens/material_exchange.h"
#include "catalogue/screens/material_list.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "ui/text_screen.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(1060, 640);

}  // namespace

frmDatabase::frmDatabase(QWidget* parent)
    : EntryScreen(QStringLiteral("frmDatabase"), QStringLiteral("数据库管理"), parent),
      tvw_(new CatalogueTree(this)),
      materials_(new MaterialList(this)) {
    LayOut();
    OnSignal(tvw_, &NodeTree::itemSelectionChanged, this, [this] { ShowNode(); });
    OnSignal(materials_->List(), &ReportList::itemDoubleClicked, this, [this] { EditMaterial(); });
    Guarded(this, [this] { tvw_->Load(); });
}

QPushButton* frmDatabase::Command(const char* name, const char* caption, const char* toolTip,
                                  std::function<void()> work) {
    QPushButton* button = MakeButton(name, ToQt(caption), this, ToQt(toolTip));
    OnSignal(button, &QPushButton::clicked, this, std::move(work));
    return button;
}

void frmDatabase::LayOut() {
    auto* addNode = Command("CmdAdd1", "添加 &T", "添加厂家或系列", [this] { tvw_->AddNode(); });
    auto* editNode = Command("CmdEdit1", "编辑 &B", "编辑厂家或系列", [this] { tvw_->EditNode(); });
    auto* deleteNode = Command("CmdDel1", "删除 &S", "删除厂家或系列及其全部材料", [this] {
        if (tvw_->DeleteNode()) materials_->Clear();
    });
    auto* add = Command("CmdAdd2", "添加 &A", "添加材料 (Insert)", [this] { AddMaterialRow(); });
    auto* edit = Command("CmdEdit2", "编辑 &E", "编辑材料 (F2 或双击)", [this] { EditMaterial(); });
    auto* del = Command("CmdDel2", "删除 &D", "删除材料 (Delete)", [this] { DeleteMaterialRow(); });
    auto* uses = Command("CmdUses", "用在何处", "哪些窗型的公式引用这种材料", [this] { ShowUses(); });
    auto* price =
        Command("cmdPrice", "调整价格", "把厂家或系列的全部材料改为同一价格", [this] { SetAllPrices(); });
    auto* percent = Command("CmdPercent", "百分比调价", "把厂家或系列的全部价格提高或降低百分之几",
                            [this] { OnList(RaisePricesOf); });
    auto* print = Command("CmdPrint", "打印价格", "打印列表中的材料", [this] {
        OnList([](QWidget* screen, MaterialList& list, const QString& title) {
            PrintMaterials(screen, list, title);
        });
    });
    auto* output = Command("CmdOutput", "导出到Excel", "导出列表中的材料", [this] {
        OnList([](QWidget* screen, MaterialList& list, const QString& title) {
            ExportMaterials(screen, list, title);
        });
    });
    auto* input = Command("CmdInput", "导入自Excel", "把表中的材料加到选取的厂家或系列",
                          [this] { OnList(ImportMaterials); });
    auto* exit = Command("CmdExit", "返    回", "Esc", [this] { Leave(); });

    auto* panes = new QSplitter(Qt::Horizontal, this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(tvw_);
    panes->addWidget(materials_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({220, 640});
    LayOutBesideButtons(
        this, panes,
        {{addNode, editNode, deleteNode}, {add, edit, del, uses}, {price, percent}, {print, output, input}},
        exit);
    resize(kFirstSize);
    ReportList* list = materials_->List();
    list->OfferInMenu({add, edit, del, uses});
    OnEnter(list, [this] { EditMaterial(); });
    OnEnter(materials_->FilterBox(), [list] { list->setFocus(); });
    PressOnKeys(list, Qt::Key_Insert, add);
    PressOnKeys(list, Qt::Key_F2, edit);
    PressOnKeys(list, Qt::Key_Delete, del);
}

void frmDatabase::ShowNode() {
    const QTreeWidgetItem* node = tvw_->Selected();
    if (node == nullptr) return;
    const CatalogueClass* materialClass = ClassOfKind(NodeTree::Kind(node));
    if (materialClass == nullptr) return materials_->Clear();
    materials_->ShowNode(*materialClass, NodeTree::Id(node));
}

void frmDatabase::AddMaterialRow() {
    const CatalogueClass* materialClass = materials_->Class();
    if (materialClass == nullptr) return Tell(this, QStringLiteral("当前状态下不能添加任何数据！"));
    if (tvw_->Selected() == nullptr) {
        return Tell(this, QStringLiteral("没有选取系列或厂家对象无法执行该功能！"));
    }
    MaterialTexts presets;
    for (const MaterialColumn& column : materialClass->columns) presets.emplace_back(column.preset);
    const QString title = QStringLiteral("添加->") + ToQt(materialClass->name);
    InputMaterial(this, title, *materialClass, presets, [&](const MaterialTexts& texts) {
        materials_->ShowMaterial(-1, AddMaterial(App().Main(), *materialClass, materials_->Node(), texts));
    });
}

void frmDatabase::EditMaterial() {
    const int row = materials_->List()->SelectedOrTell(QStringLiteral("无选取选需的编辑对象！"));
    if (row < 0) return;
    const CatalogueClass& materialClass = *materials_->Class();
    const MaterialTexts before = materials_->Material(row);
    const QString title = QStringLiteral("编辑->") + ToQt(materialClass.name);
    MaterialTexts typed = before;
    bool isPutBack = false;
    do {
        isPutBack = false;
        InputMaterial(this, title, materialClass, typed, [&](const MaterialTexts& texts) {
            typed = texts;
            const std::string& code = before[materialClass.code];
            const QString note = texts[materialClass.code] == code ? QString() : UsesNote(code);
            isPutBack =
                !note.isEmpty() && !AskToLose(this, QStringLiteral("要改“%1”吗？").arg(ToQt(code)) + note);
            if (isPutBack) return;
            UpdateMaterial(App().Main(), materialClass, before.back(), texts);
            materials_->ShowMaterial(row, before.back());
        });
    } while (isPutBack);
}

void frmDatabase::DeleteMaterialRow() {
    const int row = materials_->List()->SelectedOrTell(QStringLiteral("无选取所要删除的对象！"));
    if (row < 0) return;
    const CatalogueClass& materialClass = *materials_->Class();
    const MaterialTexts material = materials_->Material(row);
    const QString question = QStringLiteral("确认要删除该记录吗？(%1)").arg(ToQt(material.front()));
    if (!AskToLose(this, question + UsesNote(material[materialClass.code]))) return;
    DeleteMaterial(App().Main(), materialClass, material.back());
    materials_->List()->RemoveRow(row);
}

void frmDatabase::ShowUses() {
    const int row = materials_->List()->SelectedOrTell(QStringLiteral("没有选取材料。"));
    if (row < 0) return;
    const std::string code = materials_->Material(row)[materials_->Class()->code];
    const std::string text = UsesText(code, UsesOfMaterial(App().Main(), *materials_->Class(), code));
    TextScreen(QStringLiteral("frmUses"), QStringLiteral("用在何处"), ToQt(text), this).exec();
}

void frmDatabase::SetAllPrices() {
    const QTreeWidgetItem* node = tvw_->Selected();
    if (node == nullptr) return Tell(this, QStringLiteral("当前状态下不能调整任何数据！"));
    const CatalogueClass* materialClass = ClassOfKind(NodeTree::Kind(node));
    // The price of a fitting is changed row by row only.
    if (materialClass == nullptr || materialClass->priceCaption == nullptr) return;
    const auto save = [&](const std::string& price) {
        SetPrices(App().Main(), *materialClass, NodeTree::Id(node), price);
    };
    // The list shows the new prices when the node is selected again.
    if (InputPrice(this, ToQt(materialClass->priceCaption), save)) {
        Tell(this, QStringLiteral("已更新完毕。"));
    }
}

void frmDatabase::OnList(void (*command)(QWidget* screen, MaterialList& list, const QString& title)) {
    if (materials_->Class() == nullptr) return Tell(this, QStringLiteral("请先选取系列或厂家。"));
    command(this, *materials_, ListTitle());
}

QString frmDatabase::ListTitle() const {
    const QTreeWidgetItem* node = tvw_->Selected();
    if (node == nullptr) return ToQt(materials_->Class()->name);
    const QString name = node->text(0);
    return node->parent() == nullptr ? name : node->parent()->text(0) + QLatin1Char(' ') + name;
}

QString frmDatabase::UsesNote(const std::string& code) const {
    return QuotedBy(static_cast<int>(UsesOfMaterial(App().Main(), *materials_->Class(), code).size()));
}

}  // namespace kalvane
