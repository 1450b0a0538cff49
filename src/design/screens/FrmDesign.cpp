#include "design/screens/FrmDesign.h"

#include <QPushButton>
#include <QSplitter>

#include "design/screens/FrmMCGS.h"
#include "design/screens/formula_exchange.h"
#include "design/screens/frmInputMC.h"
#include "design/screens/type_clipboard.h"
#include "design/screens/type_picture.h"
#include "design/screens/type_tree.h"
#include "design/window_type_edits.h"
#include "design/window_type_tree.h"
#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/entry_form.h"
#include "ui/guard.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(980, 600);
constexpr std::size_t kNameSlot = 2;
}  // namespace

struct FrmDesign::Level {
    const char* kind;
    QString word;
    void (*rename)(Connection&, std::string_view id, std::string_view name);
    void (*remove)(Connection&, std::string_view id);

    static const Level& Maker() {
        static const Level level{kWindowMakerKind, QStringLiteral("门窗厂家"), RenameWindowMaker,
                                 DeleteWindowMaker};
        return level;
    }
    static const Level& Series() {
        static const Level level{kWindowSeriesKind, QStringLiteral("门窗系列"), RenameWindowSeries,
                                 DeleteWindowSeries};
        return level;
    }
    static const Level& Type() {
        static const Level level{kWindowTypeKind, QStringLiteral("门窗"), nullptr, DeleteWindowType};
        return level;
    }
};

FrmDesign::FrmDesign(QWidget* parent)
    : Screen(QStringLiteral("FrmDesign"), QStringLiteral("门窗设计"), parent),
      tvw_(new TypeTree(QStringLiteral("Tvw"), this)),
      picture_(new TypePicture(QStringLiteral("Picture2"), this)),
      addMaker_(MakeButton("CmdAddCJ", QStringLiteral("新建门窗厂家 "), this)),
      editMaker_(MakeButton("CmdEditCJ", QStringLiteral("编辑门窗厂家 "), this)),
      deleteMaker_(MakeButton("cmdDelCJ", QStringLiteral("删除门窗厂家 "), this)),
      addSeries_(MakeButton("CmdAddXL", QStringLiteral("新建门窗系列"), this)),
      editSeries_(MakeButton("CmdEditXL", QStringLiteral("编辑门窗系列"), this)),
      deleteSeries_(MakeButton("CmdDelXL", QStringLiteral("删除门窗系列 "), this)),
      addType_(MakeButton("CmdAddMC", QStringLiteral("新建门窗"), this)),
      editType_(MakeButton("CmdEditMC", QStringLiteral("编辑门窗 "), this)),
      deleteType_(MakeButton("CmdDelMC", QStringLiteral("删除门窗 "), this)),
      design_(MakeButton("CmdDesignMC", QStringLiteral("设计门窗 "), this,
                         QStringLiteral("设计门窗的公式 (Enter 或双击)"))),
      input_(MakeButton("CmdInputGS", QStringLiteral("导入公式自Excel"), this)),
      output_(MakeButton("CmdOutGS", QStringLiteral("导出公式到Excel"), this)),
      recover_(MakeButton("CmdRecover", QStringLiteral("恢复未保存的公式"), this,
                          QStringLiteral("上次没有保存的公式还在，打开它继续设计"))),
      exit_(MakeButton("CmdExit", QStringLiteral("返    回"), this, QStringLiteral("Esc"))),
      clipboard_(new TypeClipboard(tvw_, this)),
      shelf_(App().folder, "unsaved-formulas-") {
    design_->setDefault(true);
    LayOut();
    Connect();
    Guarded(this, [this] { Load(); });
}

void FrmDesign::LayOut() {
    auto* panes = new QSplitter(Qt::Horizontal, this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(tvw_);
    panes->addWidget(picture_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({300, 480});
    LayOutBesideButtons(this, panes,
                        {{addMaker_, editMaker_, deleteMaker_},
                         {addSeries_, editSeries_, deleteSeries_},
                         {addType_, editType_, deleteType_, design_},
                         {input_, output_},
                         {recover_}},
                        exit_);
    resize(kFirstSize);
}

void FrmDesign::Connect() {
    OnSignal(tvw_, &TypeTree::itemSelectionChanged, this, [this] { ShowSelected(); });
    OnSignal(tvw_, &TypeTree::itemDoubleClicked, this, [this] {
        if (design_->isEnabled()) DesignType();
    });
    OnSignal(addMaker_, &QPushButton::clicked, this, [this] { AddMaker(); });
    OnSignal(addSeries_, &QPushButton::clicked, this, [this] { AddSeries(); });
    OnSignal(addType_, &QPushButton::clicked, this, [this] { AddType(); });
    OnSignal(editMaker_, &QPushButton::clicked, this, [this] { Rename(Level::Maker()); });
    OnSignal(editSeries_, &QPushButton::clicked, this, [this] { Rename(Level::Series()); });
    OnSignal(editType_, &QPushButton::clicked, this, [this] { EditType(); });
    OnSignal(deleteMaker_, &QPushButton::clicked, this, [this] { Delete(Level::Maker()); });
    OnSignal(deleteSeries_, &QPushButton::clicked, this, [this] { Delete(Level::Series()); });
    OnSignal(deleteType_, &QPushButton::clicked, this, [this] { Delete(Level::Type()); });
    OnSignal(design_, &QPushButton::clicked, this, [this] { DesignType(); });
    OnSignal(output_, &QPushButton::clicked, this, [this] { ExportFormulas(this); });
    OnSignal(input_, &QPushButton::clicked, this, [this] { Import(); });
    OnSignal(recover_, &QPushButton::clicked, this, [this] { Recover(); });
    OnSignal(exit_, &QPushButton::clicked, this, [this] { Leave(); });
}

void FrmDesign::Load() {
    tvw_->Show(LoadWindowTypes(App().Main()));
    ShowSelected();
}

void FrmDesign::ShowSelected() {
    const QTreeWidgetItem* node = tvw_->Selected();
    const bool hasNodes = tvw_->topLevelItemCount() > 0;
    // With nothing selected the commands of makers are at hand.
    const std::string kind = node != nullptr ? NodeTree::Kind(node) : hasNodes ? kWindowMakerKind : "0";
    for (QPushButton* button : {addSeries_, addType_}) button->setEnabled(hasNodes);
    for (QPushButton* button : {editMaker_, deleteMaker_}) button->setEnabled(kind == kWindowMakerKind);
    for (QPushButton* button : {editSeries_, deleteSeries_}) button->setEnabled(kind == kWindowSeriesKind);
    for (QPushButton* button : {editType_, deleteType_, design_}) button->setEnabled(kind == kWindowTypeKind);
    recover_->setVisible(shelf_.Offers());
    picture_->ShowNode(node);
}

QTreeWidgetItem* FrmDesign::Selected(const Level& level, const QString& complaint) {
    QTreeWidgetItem* node = tvw_->Selected();
    if (node != nullptr && NodeTree::Kind(node) == level.kind) return node;
    Tell(this, complaint);
    return nullptr;
}

void FrmDesign::InputName(const QString& title, const QString& name,
                          const std::function<void(const std::string& name)>& save) {
    FieldSlots& slots = SharedFieldSlots();
    EntryForm input(QStringLiteral("frmInputXL"), title,
                    {{.name = QStringLiteral("Text1"),
                      .caption = QStringLiteral("名称："),
                      .slot = kNameSlot,
                      .column = QStringLiteral("名称")}},
                    slots, this);
    input.Fill({name});
    input.Run([&] { save(slots[kNameSlot]); });
}

void FrmDesign::AddNode(const std::string& name, const Level& level, const std::string& id,
                        QTreeWidgetItem* parent) {
    QTreeWidgetItem* node = tvw_->Add({name, MakeKey(level.kind, id)}, parent);
    if (parent != nullptr) parent->setExpanded(true);
    tvw_->scrollToItem(node);
    ShowSelected();
}

void FrmDesign::AddMaker() {
    InputName(QStringLiteral("添加->门窗厂家"), {}, [this](const std::string& name) {
        AddNode(name, Level::Maker(), AddWindowMaker(App().Main(), name), nullptr);
    });
}

void FrmDesign::AddSeries() {
    QTreeWidgetItem* maker = Selected(Level::Maker(), QStringLiteral("无法添加对象！"));
    if (maker == nullptr) return;
    InputName(QStringLiteral("添加->门窗系列"), {}, [&](const std::string& name) {
        AddNode(name, Level::Series(), AddWindowSeries(App().Main(), NodeTree::Id(maker), name), maker);
    });
}

void FrmDesign::AddType() {
    QTreeWidgetItem* series = Selected(Level::Series(), QStringLiteral("无法在当前状态下添加！"));
    if (series == nullptr) return;
    frmInputMC input(QStringLiteral("添加->门窗"), SharedFieldSlots(), this);
    input.Input([&](const WindowType& type) {
        const std::string id = AddWindowType(App().Main(), NodeTree::Id(series), type.name, type.drawing);
        AddNode(type.name, Level::Type(), id, series);
    });
}

void FrmDesign::Rename(const Level& level) {
    QTreeWidgetItem* node = Selected(level, QStringLiteral("无选取所要编辑的对象！"));
    if (node == nullptr) return;
    InputName(QStringLiteral("编辑->") + level.word, node->text(0), [&](const std::string& name) {
        level.rename(App().Main(), NodeTree::Id(node), name);
        node->setText(0, ToQt(name));
    });
}

void FrmDesign::EditType() {
    QTreeWidgetItem* node = Selected(Level::Type(), QStringLiteral("无选取所要编辑的对象！"));
    if (node == nullptr) return;
    frmInputMC input(QStringLiteral("编辑->门窗"), SharedFieldSlots(), this);
    input.Show(ReadWindowType(App().Main(), NodeTree::Id(node), SharedFieldSlots()));
    input.Input([&](const WindowType& type) {
        UpdateWindowType(App().Main(), NodeTree::Id(node), type.name, type.drawing);
        node->setText(0, ToQt(type.name));
    });
    ShowSelected();
}

void FrmDesign::Delete(const Level& level) {
    QTreeWidgetItem* node = Selected(level, QStringLiteral("无选取所要删除的对象！"));
    if (node == nullptr) return;
    if (!AskToLose(this, QStringLiteral("%1确定要删除该%2吗？").arg(node->text(0), level.word))) return;
    level.remove(App().Main(), NodeTree::Id(node));
    delete node;
    clipboard_->ForgetDeleted();
    ShowSelected();
}

void FrmDesign::DesignType() {
    const QTreeWidgetItem* node = Selected(Level::Type(), QStringLiteral("无选取所要编辑的对象！"));
    if (node == nullptr) return;
    shelf_.PutAside();
    FrmMCGS(NodeTree::Id(node), shelf_, this).exec();
    ShowSelected();
}

void FrmDesign::Import() {
    // What came in before a failure is in the store as well.
    bool imported = true;
    const bool isWell = Guarded(this, [&] { imported = ImportFormulasInto(tvw_->Selected(), this); });
    if (imported || !isWell) Load();
}

void FrmDesign::Recover() {
    const UnsavedFormulas unsaved = ReadUnsavedFormulas(shelf_.Take());
    ShowSelected();
    QTreeWidgetItem* node = tvw_->Find(MakeKey(kWindowTypeKind, unsaved.type));
    if (node == nullptr) {
        if (AskToLose(this, QStringLiteral("未保存的公式所属的窗型已经删除，要放弃这些公式吗？")))
            shelf_.Discard();
        return;
    }
    tvw_->setCurrentItem(node);
    FrmMCGS designer(unsaved.type, shelf_, this);
    designer.TakeUp(unsaved.lists);
    designer.exec();
    ShowSelected();
}

}  // namespace kalvane
