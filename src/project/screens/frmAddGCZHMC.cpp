#include "project/screens/frmAddGCZHMC.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "numeric/error.h"
#include "numeric/number.h"
#include "project/composite_windows.h"
#include "project/screens/label_editor.h"
#include "project/screens/member_editor.h"
#include "project/screens/window_boxes.h"
#include "project/screens/window_rows.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(1160, 760);
}  // namespace

frmAddGCZHMC::frmAddGCZHMC(QWidget* parent)
    : EntryScreen(QStringLiteral("frmAddGCZHMC"), QStringLiteral("添加门窗"), parent),
      members_(new MemberEditor(this)),
      boxes_(new WindowBoxes(this)),
      add_(MakeButton("cmdAdd", QStringLiteral("添    加 [&A]"), this)),
      exit_(MakeButton("Command2", QStringLiteral("退    出 [&E]"), this)) {
    add_->setDefault(true);
    members_->PutBelowPicture(boxes_);
    members_->PutBelowLabels(add_);
    members_->PutBelowLabels(exit_);
    auto* all = new QVBoxLayout(this);
    all->addWidget(members_, 1);
    resize(kFirstSize);
    Connect();
}

void frmAddGCZHMC::Connect() {
    connect(members_, &MemberEditor::MainLabelChanged, boxes_, &WindowBoxes::TakeLabel);
    connect(members_, &MemberEditor::LabelsDone, this, [this] { FocusAll(boxes_->Place()); });
    OnSignal(add_, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(exit_, &QPushButton::clicked, this, [this] { Exit(); });
    for (QLineEdit* box : boxes_->All()) {
        quotes_.Watch(box);
        connect(box, &QLineEdit::textEdited, this, [this] { hasTyped_ = true; });
    }
    OnEnter(members_->Types(), [this] { members_->AddMember(); });
    OnEnter(members_->Members(), [this] { members_->Labels()->Start(); });
    OnEnter(members_->Labels()->ValueBox(), [this] { members_->Labels()->Change(); });
    EnterWalks(boxes_->All());
    EnterMovesTo(boxes_->All().back(), add_);
}

void frmAddGCZHMC::StartAdding(const std::string& projectNumber) {
    DropMembersUnderEdit(App().Main());
    window_.projectNumber = projectNumber;
    members_->Show({}, {});
    boxes_->Zero();
    members_->OpenButton()->setFocus();
}

void frmAddGCZHMC::StartEditing(const WindowEntry& window) {
    isEditing_ = true;
    window_ = window;
    setWindowTitle(QStringLiteral("组合窗编辑"));
    add_->setText(QStringLiteral("确定"));
    boxes_->Show(window);
    members_->Show(OpenComposite(App().Main(), window), ToQt(ShortText(-Val(window.typeNumber))));
    members_->Members()->setFocus();
}

bool frmAddGCZHMC::HasTypedWork() const {
    return hasTyped_ || members_->IsChanged();
}

bool frmAddGCZHMC::MaySave() {
    if (!quotes_.MaySave(this)) return false;
    const QStringList faults = members_->Faults();
    return faults.isEmpty() ||
           AskToLose(this,
                     QStringLiteral("保存前请看：\n%1\n\n仍要保存吗？").arg(faults.join(QLatin1Char('\n'))));
}

void frmAddGCZHMC::Save() {
    if (!AllFilled(boxes_->All())) return;
    if (members_->DrawingNumber().isEmpty()) {
        return TellAt(this, QStringLiteral("数据不能为空！"), members_->OpenButton());
    }
    if (!MaySave()) return;
    WindowEntry window = boxes_->Entered(window_);
    window.typeNumber = "-" + FromQt(members_->DrawingNumber());
    hasSaveFailed_ = true;
    try {
        SaveComposite(App().Main(), window);
    } catch (const Error&) {
        window_.number = window.number;  // the next attempt replaces what this one has written
        throw;
    }
    hasSaveFailed_ = false;
    hasTyped_ = false;
    members_->MarkUnchanged();
    Q_EMIT WindowSaved(ToRow(window));
    if (isEditing_) return accept();
    window_.number.clear();
    boxes_->Zero();
    members_->ClearDrawingNumber();
}

void frmAddGCZHMC::Exit() {
    const QString question = QStringLiteral("这樘组合窗没有存储成功，现在退出会丢失它的内容。\n要退出吗？");
    if (!hasSaveFailed_ || AskToLose(this, question)) Leave();
}

void frmAddGCZHMC::done(int result) {
    Guarded(this, [] { DropMembersUnderEdit(App().Main()); });
    EntryScreen::done(result);
}

}  // namespace kalvane
