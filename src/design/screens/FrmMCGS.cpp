#include "design/screens/FrmMCGS.h"

#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "design/screens/formula_tabs.h"
#include "design/screens/frmCopyGS.h"
#include "design/screens/frmFindReplace.h"
#include "design/screens/frmFormulaCheck.h"
#include "design/screens/macro_form.h"
#include "design/screens/material_chooser.h"
#include "design/screens/row_frame.h"
#include "design/screens/test_value_table.h"
#include "design/screens/type_picture.h"
#include "design/window_type_tree.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(1180, 760);
constexpr std::size_t kNamedFindings = 12;  // in a question

/// What is said when no row of the class is there to be replaced.
QString NothingToReplace(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return QStringLiteral("没有选中要替换的型材或无可替换的型材！");
        case MaterialClass::Steel:
            return QStringLiteral("没有选中要替换的型钢或无可替换的型钢！");
        case MaterialClass::Panel:
            return QStringLiteral("没有选中要替换的板材或无可替换的板材！");
        case MaterialClass::Fitting:
            break;
    }
    return QStringLiteral("没有选中要替换的配件或无可替换的配件！");
}

}  // namespace

FrmMCGS::FrmMCGS(const std::string& type, RecoveryShelf& shelf, QWidget* parent)
    : EntryScreen(QStringLiteral("FrmMCGS"), QStringLiteral("门窗公式设计"), parent),
      designer_(App().Main(), type, shelf, [this](const std::string& text) { Tell(this, ToQt(text)); }),
      codes_(App().Main()),
      picture_(new TypePicture(QStringLiteral("PicMC"), this)),
      tests_(new TestValueTable(this)),
      materials_(new MaterialChooser(this)),
      tabs_(new FormulaTabs(this)),
      frame_(new RowFrame(this)),
      line_(new QLabel(this)),
      undo_(MakeButton("CmdUndo", QStringLiteral("撤消"), this, QStringLiteral("Ctrl+Z"))),
      redo_(MakeButton("CmdRedo", QStringLiteral("重做"), this, QStringLiteral("Ctrl+Y"))) {
    line_->setObjectName(QStringLiteral("LblValue"));
    line_->setTextFormat(Qt::PlainText);
    line_->setWordWrap(true);
    LayOut();
    Connect();
    const WindowType row = ReadWindowType(App().Main(), type, SharedFieldSlots());
    if (!row.drawing.empty()) {
        tests_->Show(LabelsToTest(App().Main(), type, row.drawing));
        labels_ = tests_->Values().Names();
    }
    // A drawing that cannot be painted keeps nobody from its formulas.
    Guarded(this, [&] { picture_->ShowType(type); });
    materials_->Load();
    ShowLists();
}

QPushButton* FrmMCGS::Command(const char* name, const QString& caption, void (FrmMCGS::*work)(),
                              const QString& toolTip) {
    QPushButton* button = MakeButton(name, caption, this, toolTip);
    button->setAutoDefault(false);
    OnSignal(button, &QPushButton::clicked, this, [this, work] { (this->*work)(); });
    commands_ << button;
    return button;
}

void FrmMCGS::LayOut() {
    auto* lists = new QWidget(this);
    auto* below = new QVBoxLayout(lists);
    below->setContentsMargins(0, 0, 0, 0);
    below->addWidget(tabs_, 1);
    below->addWidget(line_);
    below->addWidget(frame_);
    auto* top = new QSplitter(Qt::Horizontal, this);
    for (QWidget* pane : std::initializer_list<QWidget*>{picture_, tests_, materials_}) top->addWidget(pane);
    top->setSizes({330, 150, 560});
    auto* panes = new QSplitter(Qt::Vertical, this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(top);
    panes->addWidget(lists);
    panes->setSizes({300, 420});

    QPushButton* select = Command("CmdSelect", QStringLiteral("选入"), &FrmMCGS::SelectMaterial,
                                  QStringLiteral("把选取的材料加入下面的公式表 (双击材料)"));
    QPushButton* remove =
        Command("CmdRemove", QStringLiteral("移除"), &FrmMCGS::Remove, QStringLiteral("Delete"));
    QPushButton* removeAll = Command("CmdRemoveAll", QStringLiteral("移除全部"), &FrmMCGS::RemoveAll,
                                     QStringLiteral("清空四张公式表"));
    QPushButton* replace = Command("cmdReplace", QStringLiteral("单一替换"), &FrmMCGS::Replace);
    QPushButton* replaceAll = Command("CmdReplaceAll", QStringLiteral("同组替换"), &FrmMCGS::ReplaceAll);
    QPushButton* macro = Command("CmdMacroReplace", QStringLiteral("宏替换"), &FrmMCGS::MacroReplace);
    QPushButton* find = Command("CmdFindReplace", QStringLiteral("查找替换"), &FrmMCGS::FindReplace);
    QPushButton* copy = Command("CmdCopy", QStringLiteral("复制公式"), &FrmMCGS::CopyFormulas);
    QPushButton* check =
        Command("CmdCheck", QStringLiteral("核对"), &FrmMCGS::Check, QStringLiteral("按试算值核对整个窗型"));
    QPushButton* save = Command("CmdSave", QStringLiteral("保存退出"), &FrmMCGS::Save);
    QPushButton* exit = Command("CmdExit", QStringLiteral("退出"), &FrmMCGS::Exit);
    commands_ << undo_ << redo_;
    LayOutBesideButtons(this, panes,
                        {{select, remove, removeAll},
                         {replace, replaceAll, macro, find, copy},
                         {undo_, redo_, check},
                         {save}},
                        exit);
    resize(kFirstSize);
    for (const MaterialClass each : kListClasses) {
        PressOnKeys(tabs_->List(each), Qt::Key_Delete, remove);
        OnEnter(tabs_->List(each), [this] { OpenRow(); });
    }
    PressOnKeys(this, QKeySequence::Undo, undo_, Qt::WidgetWithChildrenShortcut);
    PressOnKeys(this, Qt::CTRL | Qt::Key_Y, redo_, Qt::WidgetWithChildrenShortcut);
    OnSignal(materials_, &MaterialChooser::Chosen, this, [select] { select->click(); });
}

void FrmMCGS::Connect() {
    for (QPushButton* button : {undo_, redo_}) button->setAutoDefault(false);
    OnSignal(undo_, &QPushButton::clicked, this, [this] { Undo(); });
    OnSignal(redo_, &QPushButton::clicked, this, [this] { Redo(); });
    OnSignal(tabs_, &FormulaTabs::RowSelected, this, [this] { ShowRow(); });
    OnSignal(tabs_, &FormulaTabs::RowOpened, this, [this] { OpenRow(); });
    OnSignal(tests_, &TestValueTable::Changed, this, [this] { ShowRow(); });
    OnSignal(frame_->Ok(), &QPushButton::clicked, this, [this] { ConfirmRow(); });
    OnSignal(frame_->Cancel(), &QPushButton::clicked, this, [this] { CloseRow(); });
    frame_->SetHint([this](const FormulaTexts& texts) { return HintFor(editClass_, texts); });
    frame_->SetSource([this]() -> const FormulaTexts& { return tabs_->LastClicked(editClass_); });
    EnterWalks(frame_->Boxes());
    OnEnter(frame_->Boxes().back(), [this] { ConfirmRow(); });
}

// --- What is shown ---------------------------------------------------------------------------------

void FrmMCGS::Change(const std::function<void(FormulaLists&)>& command) {
    designer_.Change(command);
    ShowLists();
}

void FrmMCGS::TakeUp(const FormulaLists& lists) {
    Change([&](FormulaLists& present) { present = lists; });
}

void FrmMCGS::ShowLists() {
    findings_ = FindingsOfLists(designer_.Lists(), codes_, labels_);
    tabs_->Show(designer_.Lists(), findings_);
    EnableCommands(true);
    ShowRow();
}

void FrmMCGS::EnableCommands(bool enabled) {
    for (QPushButton* command : commands_) command->setEnabled(enabled);
    undo_->setEnabled(enabled && designer_.CanUndo());
    redo_->setEnabled(enabled && designer_.CanRedo());
}

QString FrmMCGS::HintFor(MaterialClass materialClass, const FormulaTexts& texts) const {
    QString hint = ToQt(RowValues(materialClass, texts, tests_->Values()));
    for (const FormulaFinding& finding : FindingsOfRow(materialClass, 0, texts, codes_, labels_)) {
        hint += QStringLiteral("；") + ToQt(finding.text);
    }
    return hint;
}

void FrmMCGS::ShowRow() {
    const MaterialClass front = tabs_->Front();
    const std::optional<std::size_t> row = tabs_->SelectedRow(front);
    const auto& rows = designer_.Lists()[front];
    line_->setText(row && *row < rows.size() ? HintFor(front, rows[*row]) : QString());
}

// --- Commands --------------------------------------------------------------------------------------

void FrmMCGS::SelectMaterial() {
    const std::optional<Material> material = materials_->SelectedOrTell();
    if (!material) return;
    Change([&](FormulaLists& lists) { lists[material->materialClass].push_back(RowOf(*material)); });
    tabs_->SelectRow(material->materialClass, designer_.Lists()[material->materialClass].size() - 1);
}

void FrmMCGS::Remove() {
    const MaterialClass front = tabs_->Front();
    const std::optional<std::size_t> row = tabs_->SelectedRow(front);
    if (!row) return Tell(this, QStringLiteral("没有选取所要移除数据"));
    Change([&](FormulaLists& lists) {
        lists[front].erase(lists[front].begin() + static_cast<std::ptrdiff_t>(*row));
    });
}

void FrmMCGS::RemoveAll() {
    Change([](FormulaLists& lists) { lists = FormulaLists(); });
}

std::optional<std::pair<Material, std::size_t>> FrmMCGS::ChosenToReplace() {
    const std::optional<Material> material = materials_->SelectedOrTell();
    if (!material) return std::nullopt;
    const std::optional<std::size_t> row = tabs_->SelectedRow(material->materialClass);
    if (row) return std::pair(*material, *row);
    Tell(this, NothingToReplace(material->materialClass));
    return std::nullopt;
}

void FrmMCGS::Replace() {
    const auto chosen = ChosenToReplace();
    if (!chosen) return;
    const auto& [material, row] = *chosen;
    Change([&](FormulaLists& lists) { ReplaceMaterial(lists[material.materialClass][row], material); });
}

void FrmMCGS::ReplaceAll() {
    const auto chosen = ChosenToReplace();
    if (!chosen) return;
    const auto& [material, row] = *chosen;
    Change([&](FormulaLists& lists) { ReplaceMaterials(lists[material.materialClass], row, material); });
}

void FrmMCGS::MacroReplace() {
    const std::optional<MacroValues> values = AskMacroValues(designer_.Lists(), this);
    if (values) Change([&](FormulaLists& lists) { lists = MacroReplaced(lists, *values); });
}

void FrmMCGS::FindReplace() {
    frmFindReplace form(designer_.Lists(), SharedFieldSlots(), this);
    if (!form.Run()) return;
    Change([&](FormulaLists& lists) { lists = TextReplaced(lists, form.Request()); });
}

void FrmMCGS::CopyFormulas() {
    if (frmCopyGS(this).exec() != Accepted) return;
    designer_.TakeOver(SharedFieldSlots()[0]);
    ShowLists();
}

void FrmMCGS::Undo() {
    designer_.Undo();
    ShowLists();
}

void FrmMCGS::Redo() {
    designer_.Redo();
    ShowLists();
}

void FrmMCGS::Check() {
    const TestValues values = tests_->Values();
    std::vector<FormulaFinding> all = findings_;
    const std::vector<FormulaFinding> pieces = PiecesThatCannotBe(designer_.Lists(), values);
    all.insert(all.end(), pieces.begin(), pieces.end());
    QStringList missing;
    for (const std::string& label : labels_) {
        if (!values.Of(label)) missing << ToQt(label);
    }
    QString remark;
    if (!missing.isEmpty()) {
        remark = QStringLiteral("标注 %1 还没有试算值，用到它们的尺寸没有核对。")
                     .arg(missing.join(QStringLiteral("、")));
    } else if (all.empty()) {
        remark = QStringLiteral("没有发现问题。");
    }
    const std::optional<std::size_t> chosen = frmFormulaCheck(all, remark, this).Choose();
    if (chosen) tabs_->SelectRow(all[*chosen].materialClass, all[*chosen].row);
}

bool FrmMCGS::ConfirmSave() {
    const QString lost = ToQt(LinesOf(findings_, FindingKind::NotSaved, kNamedFindings));
    if (!lost.isEmpty() &&
        !AskToLose(
            this,
            QStringLiteral("以下内容无法保存，保存到这里就会中断，本窗型原有的公式和后面的行都会丢失：\n%1\n"
                           "仍要保存吗？")
                .arg(lost))) {
        return false;
    }
    const QString unknown = ToQt(LinesOf(findings_, FindingKind::NoCode, kNamedFindings));
    return unknown.isEmpty() ||
           Ask(this, QStringLiteral("以下型号在材料库中没有：\n%1\n仍要保存吗？").arg(unknown));
}

void FrmMCGS::Save() {
    if (!ConfirmSave()) return;
    designer_.Save();
    Leave();
}

void FrmMCGS::Exit() {
    if (designer_.IsDirty()) {
        if (UseDialogs().AskYesNo(this, QStringLiteral("是否要保存？"), QStringLiteral("提示？"),
                                  Dialogs::Answer::Yes)) {
            return Save();
        }
    }
    Leave();
}

void FrmMCGS::done(int result) {
    if (designer_.IsDirty()) designer_.Abandon();
    EntryScreen::done(result);
}

void FrmMCGS::reject() {
    if (frame_->isVisible()) return CloseRow();
    EntryScreen::reject();
}

// --- The row frame ---------------------------------------------------------------------------------

void FrmMCGS::OpenRow() {
    const std::optional<std::size_t> row = tabs_->SelectedRow(tabs_->Front());
    if (!row || frame_->isVisible()) return;
    editClass_ = tabs_->Front();
    editRow_ = *row;
    EnableCommands(false);
    frame_->Open(editClass_, designer_.Lists()[editClass_][editRow_]);
}

void FrmMCGS::ConfirmRow() {
    const FormulaTexts texts = frame_->Texts();
    CloseRow();
    Change([&](FormulaLists& lists) { lists[editClass_][editRow_] = texts; });
}

void FrmMCGS::CloseRow() {
    frame_->hide();
    EnableCommands(true);
    tabs_->List(editClass_)->setFocus();
}

}  // namespace kalvane
