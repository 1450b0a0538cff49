#include "design/screens/FrmMCGS.h"

#include <QPushButton>
#include <QSplitter>

#include "design/screens/formula_editor.h"
#include "design/screens/formula_tabs.h"
#include "design/screens/frmCopyGS.h"
#include "design/screens/frmFindReplace.h"
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

/// The word for a class of materials, as the captions of the lists have it behind "门窗".
QString WordOf(MaterialClass materialClass) {
    return QString::fromUtf8(FormulaTableOf(materialClass).caption).mid(2);
}

}  // namespace

FrmMCGS::FrmMCGS(const std::string& type, RecoveryShelf& shelf, QWidget* parent)
    : EntryScreen(QStringLiteral("FrmMCGS"), QStringLiteral("门窗公式设计"), parent),
      designer_(App().Main(), type, shelf, [this](const std::string& text) { Tell(this, ToQt(text)); }),
      picture_(new TypePicture(QStringLiteral("PicMC"), this)),
      tests_(new TestValueTable(this)),
      materials_(new MaterialChooser(this)),
      editor_(new FormulaEditor(designer_, *tests_, this)) {
    LayOut();
    SetKeys();
    const WindowType row = ReadWindowType(App().Main(), type, SharedFieldSlots());
    if (!row.drawing.empty()) tests_->Show(LabelsToTest(App().Main(), type, row.drawing));
    // A drawing that cannot be painted keeps nobody from its formulas.
    Guarded(this, [&] { picture_->ShowType(type); });
    materials_->Load();
    editor_->ShowLists();
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
    auto* top = new QSplitter(Qt::Horizontal, this);
    for (QWidget* pane : std::initializer_list<QWidget*>{picture_, tests_, materials_}) top->addWidget(pane);
    top->setSizes({330, 150, 560});
    auto* panes = new QSplitter(Qt::Vertical, this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(top);
    panes->addWidget(editor_);
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
    undo_ = Command("CmdUndo", QStringLiteral("撤销"), &FrmMCGS::Undo, QStringLiteral("Ctrl+Z"));
    redo_ = Command("CmdRedo", QStringLiteral("重做"), &FrmMCGS::Redo, QStringLiteral("Ctrl+Y"));
    QPushButton* check =
        Command("CmdCheck", QStringLiteral("核对"), &FrmMCGS::Check, QStringLiteral("按试算值核对整个窗型"));
    QPushButton* save = Command("CmdSave", QStringLiteral("保存退出"), &FrmMCGS::Save);
    QPushButton* exit = Command("CmdExit", QStringLiteral("退出"), &FrmMCGS::Exit);
    LayOutBesideButtons(this, panes,
                        {{select, remove, removeAll},
                         {replace, replaceAll, macro, find, copy},
                         {undo_, redo_, check},
                         {save}},
                        exit);
    resize(kFirstSize);
    for (const MaterialClass each : kListClasses) {
        PressOnKeys(editor_->Tabs().List(each), Qt::Key_Delete, remove);
    }
    OnSignal(materials_, &MaterialChooser::Chosen, this, [select] { select->click(); });
    OnSignal(editor_, &FormulaEditor::StateChanged, this, [this] { EnableCommands(); });
}

void FrmMCGS::SetKeys() {
    for (const MaterialClass each : kListClasses) {
        OnEnter(editor_->Tabs().List(each), [this] { editor_->OpenRow(); });
    }
    EnterWalks(editor_->Frame().Boxes());
    OnEnter(editor_->Frame().Boxes().back(), [this] { editor_->ConfirmRow(); });
    PressOnKeys(this, QKeySequence::Undo, undo_, Qt::WidgetWithChildrenShortcut);
    PressOnKeys(this, Qt::CTRL | Qt::Key_Y, redo_, Qt::WidgetWithChildrenShortcut);
}

void FrmMCGS::EnableCommands() {
    const bool enabled = !editor_->IsEditing();
    for (QPushButton* command : commands_) command->setEnabled(enabled);
    undo_->setEnabled(enabled && designer_.CanUndo());
    redo_->setEnabled(enabled && designer_.CanRedo());
}

void FrmMCGS::Change(const std::function<void(FormulaLists&)>& command) {
    designer_.Change(command);
    editor_->ShowLists();
}

void FrmMCGS::TakeUp(const FormulaLists& lists) {
    Change([&](FormulaLists& present) { present = lists; });
}

void FrmMCGS::SelectMaterial() {
    const std::optional<Material> material = materials_->SelectedOrTell();
    if (!material) return;
    Change([&](FormulaLists& lists) { lists[material->materialClass].push_back(RowOf(*material)); });
    editor_->Tabs().SelectRow(material->materialClass, designer_.Lists()[material->materialClass].size() - 1);
}

void FrmMCGS::Remove() {
    const MaterialClass front = editor_->Tabs().Front();
    const std::optional<std::size_t> row = editor_->Tabs().SelectedRow(front);
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
    const std::optional<std::size_t> row = editor_->Tabs().SelectedRow(material->materialClass);
    if (row) return std::pair(*material, *row);
    Tell(this, QStringLiteral("没有选中要替换的%1或无可替换的%1！").arg(WordOf(material->materialClass)));
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
    editor_->ShowLists();
}

void FrmMCGS::Undo() {
    designer_.Undo();
    editor_->ShowLists();
}

void FrmMCGS::Redo() {
    designer_.Redo();
    editor_->ShowLists();
}

void FrmMCGS::Check() {
    editor_->Check();
}

bool FrmMCGS::ConfirmSave() {
    const QString lost = ToQt(LinesOf(editor_->Findings(), FindingKind::NotSaved, kNamedFindings));
    if (!lost.isEmpty() &&
        !AskToLose(
            this,
            QStringLiteral("以下内容无法保存，保存到这里就会中断，本窗型原有的公式和后面的行都会丢失：\n%1\n"
                           "仍要保存吗？")
                .arg(lost))) {
        return false;
    }
    const QString unknown = ToQt(LinesOf(editor_->Findings(), FindingKind::NoCode, kNamedFindings));
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
    if (editor_->IsEditing()) return editor_->CloseRow();
    EntryScreen::reject();
}

}  // namespace kalvane
