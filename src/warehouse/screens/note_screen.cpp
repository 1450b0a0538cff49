#include "warehouse/screens/note_screen.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "numeric/error.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "warehouse/goods_notes.h"
#include "warehouse/screens/note_head.h"
#include "warehouse/screens/note_line_texts.h"
#include "warehouse/screens/note_paper.h"
#include "warehouse/screens/note_questions.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(860, 560);

}  // namespace

NoteScreen::NoteScreen(NoteKind kind, const std::string& number, QWidget* parent)
    : EntryScreen(ToQt(LayoutOf(kind).screen), ToQt(LayoutOf(kind).title), parent),
      kind_(kind),
      layout_(LayoutOf(kind)),
      head_(new NoteHead(layout_, this)),
      lvw_(new ReportList(QStringLiteral("LVW"), LineColumns(kind_), this)),
      add_(MakeButton("CmdAdd", QStringLiteral("&A 添加"), this, QStringLiteral("Insert"))),
      del_(MakeButton("CmdDel", QStringLiteral("&D 删除"), this, QStringLiteral("Delete"))),
      print_(MakeButton("CmdPrint", QStringLiteral("&P 打印"), this,
                        QStringLiteral("打印已保存的单据：在“查寻”中双击它打开预览"))),
      paper_(MakePaperBox(this)),
      recover_(MakeButton("CmdRecover", QStringLiteral("恢复上次未保存的单据"), this)),
      ok_(MakeButton("OKButton", QStringLiteral("&Y 确定"), this)),
      cancel_(MakeButton("CancelButton", QStringLiteral("&C 取消"), this)),
      recovery_(kind, App().folder) {
    head_->SetText(&GoodsNote::number, number);
    recover_->setVisible(recovery_.Offers());
    OnSignal(del_, &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(recover_, &QPushButton::clicked, this, [this] { Recover(); });
    OnSignal(print_, &QPushButton::clicked, this, [this] { Print(); });
    OnSignal(ok_, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel_, &QPushButton::clicked, this, [this] { Leave(); });
}

void NoteScreen::LayOut(std::vector<QPushButton*> ownCommands) {
    ownCommands_ = std::move(ownCommands);
    auto* left = new QVBoxLayout;
    left->setSpacing(10);
    left->addWidget(head_);
    left->addWidget(lvw_, 1);
    left->addWidget(recover_, 0, Qt::AlignLeft);
    std::vector<QPushButton*> commands = {add_};
    commands.insert(commands.end(), ownCommands_.begin(), ownCommands_.end());
    commands.insert(commands.end(), {del_, print_});
    auto* right = new QVBoxLayout;
    for (QPushButton* command : commands) right->addWidget(command);
    right->addWidget(paper_);
    right->addStretch();
    for (QPushButton* command : {ok_, cancel_}) right->addWidget(command);
    auto* all = new QHBoxLayout(this);
    all->addLayout(left, 1);
    all->addLayout(right);
    resize(kFirstSize);

    const std::vector<QWidget*>& boxes = head_->Boxes();
    for (std::size_t i = 0; i + 1 < boxes.size(); ++i) EnterMovesTo(boxes[i], boxes[i + 1]);
    for (QWidget* box : boxes) {
        if (auto* line = qobject_cast<QLineEdit*>(box)) {
            OnSignal(line, &QLineEdit::editingFinished, this, [this] { KeepTyped(); });
        }
    }
    EnterMovesTo(boxes.back(), add_);
    OnEnter(add_, [this] { add_->click(); });
    boxes[1]->setFocus();  // the number stands already

    std::vector<QWidget*> order = boxes;
    order.push_back(lvw_);
    order.insert(order.end(), commands.begin(), commands.end());
    order.insert(order.end(), {paper_, recover_, ok_, cancel_});
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
    PressOnKeys(lvw_, Qt::Key_Insert, add_);
    PressOnKeys(lvw_, Qt::Key_Delete, del_);
}

NoteLine NoteScreen::LineAt(int row) const {
    return LineOf(kind_, lvw_->Row(row));
}

void NoteScreen::AddLine(const NoteLine& line) {
    AddLines({line});
}

void NoteScreen::AddLines(const std::vector<NoteLine>& lines) {
    for (const NoteLine& line : lines) lvw_->AddRow(LineTexts(kind_, line));
    if (!lines.empty()) lvw_->SelectRow(lvw_->RowCount() - 1);
    KeepTyped();
}

void NoteScreen::SetLine(int row, const NoteLine& line) {
    lvw_->SetRow(row, LineTexts(kind_, line));
    KeepTyped();
}

void NoteScreen::KeepTyped() {
    if (isPreview_ || isConfirmed_) return;
    if (!HasTypedWork()) return recovery_.Discard();
    try {
        recovery_.Keep(Entered());
        recoveryFailed_ = false;
    } catch (const FileError& failure) {
        if (std::exchange(recoveryFailed_, true)) return;
        Tell(this, QStringLiteral("未保存的单据不能写入恢复文件：%1").arg(ToQt(failure.what())));
    }
}

void NoteScreen::Recover() {
    const RecoveredNote recovered = recovery_.Take(App().Stock());
    recover_->setVisible(recovery_.Offers());
    GoodsNote note = recovered.note;
    if (recovered.storedLines > 0) {
        Tell(this, QStringLiteral("这张单据的前 %1 行已经保存，单据编号是 %2。")
                       .arg(recovered.storedLines)
                       .arg(ToQt(note.number)));
        if (note.lines.empty()) return recovery_.Discard();
    }
    note.number = head_->Entered().number;
    head_->Show(note);
    lvw_->Clear();
    AddLines(note.lines);
}

GoodsNote NoteScreen::Entered() const {
    GoodsNote note = head_->Entered();
    for (int row = 0; row < lvw_->RowCount(); ++row) note.lines.push_back(LineAt(row));
    return note;
}

bool NoteScreen::HasTypedWork() const {
    return !isPreview_ && (lvw_->RowCount() > 0 || head_->HasTypedTexts());
}

void NoteScreen::Preview(const GoodsNote& note) {
    isPreview_ = true;
    setWindowTitle(ToQt(layout_.previewTitle));
    head_->Show(note);
    head_->SetReadOnly();
    for (const NoteLine& line : note.lines) lvw_->AddRow(LineTexts(kind_, line));
    recover_->hide();
    for (QPushButton* command : {add_, del_, ok_}) command->setEnabled(false);
    for (QPushButton* command : ownCommands_) command->setEnabled(false);
    print_->setToolTip({});
    print_->setFocus();
}

void NoteScreen::Delete() {
    const int row = lvw_->SelectedOrTell(ToQt(layout_.noLineToDelete));
    if (row < 0) return;
    lvw_->RemoveRow(row);
    KeepTyped();
}

void NoteScreen::Print() {
    PrintNote(this, kind_, head_->Entered().number, *paper_);
}

void NoteScreen::Confirm() {
    GoodsNote note = Entered();
    if (RefuseIncomplete(this, kind_, note, *head_, add_)) return;
    if (kind_ == NoteKind::In) head_->SetText(&GoodsNote::amount, AmountOf(note.lines));
    if (!TakeFreeNumber(this, kind_, note)) return;
    head_->SetText(&GoodsNote::number, note.number);
    if (!IsShortageWanted(this, kind_, note)) return;
    KeepTyped();
    try {
        ConfirmNote(App().Stock(), kind_, note);
    } catch (const NoteCut& cut) {
        // What stands in the store must not be written again by the next try.
        for (std::size_t i = 0; i < cut.LinesWritten(); ++i) lvw_->RemoveRow(0);
        KeepTyped();
        throw;
    } catch (const ColumnError& refusal) {
        if (QWidget* box = head_->BoxOfColumn(refusal.Column())) box->setFocus();
        throw;
    }
    isConfirmed_ = true;  // a box that loses the focus as the screen goes keeps nothing more
    recovery_.Discard();
    accept();
}

}  // namespace kalvane
