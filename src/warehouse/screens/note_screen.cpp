#include "warehouse/screens/note_screen.h"

#include <QBoxLayout>
#include <QPushButton>

#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/report_output.h"
#include "ui/text.h"
#include "warehouse/goods_notes.h"
#include "warehouse/note_reports.h"
#include "warehouse/screens/note_head.h"
#include "warehouse/stock_shortage.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(860, 560);

QStringList LineColumns(const NoteLayout& layout) {
    QStringList columns;
    for (const NoteLineField& field : layout.lineFields) columns << ToQt(field.column);
    return columns;
}

}  // namespace

NoteScreen::NoteScreen(NoteKind kind, const std::string& number, QWidget* parent)
    : EntryScreen(ToQt(LayoutOf(kind).screen), ToQt(LayoutOf(kind).title), parent),
      kind_(kind),
      layout_(LayoutOf(kind)),
      head_(new NoteHead(layout_, this)),
      lvw_(new ReportList(QStringLiteral("LVW"), LineColumns(layout_), this)),
      add_(MakeButton("CmdAdd", QStringLiteral("&A 添加"), this, QStringLiteral("Insert"))),
      del_(MakeButton("CmdDel", QStringLiteral("&D 删除"), this, QStringLiteral("Delete"))),
      print_(MakeButton("CmdPrint", QStringLiteral("&P 打印"), this,
                        QStringLiteral("打印已保存的单据：在“查寻”中双击它打开预览"))),
      ok_(MakeButton("OKButton", QStringLiteral("&Y 确定"), this)),
      cancel_(MakeButton("CancelButton", QStringLiteral("&C 取消"), this)) {
    head_->SetText(&GoodsNote::number, number);
    OnSignal(del_, &QPushButton::clicked, this, [this] { Delete(); });
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
    std::vector<QPushButton*> commands = {add_};
    commands.insert(commands.end(), ownCommands_.begin(), ownCommands_.end());
    commands.insert(commands.end(), {del_, print_});
    auto* right = new QVBoxLayout;
    for (QPushButton* command : commands) right->addWidget(command);
    right->addStretch();
    for (QPushButton* command : {ok_, cancel_}) right->addWidget(command);
    auto* all = new QHBoxLayout(this);
    all->addLayout(left, 1);
    all->addLayout(right);
    resize(kFirstSize);

    const std::vector<QWidget*>& boxes = head_->Boxes();
    for (std::size_t i = 0; i + 1 < boxes.size(); ++i) EnterMovesTo(boxes[i], boxes[i + 1]);
    EnterMovesTo(boxes.back(), add_);
    OnEnter(add_, [this] { add_->click(); });
    boxes[1]->setFocus();  // the number stands already

    std::vector<QWidget*> order = boxes;
    order.push_back(lvw_);
    order.insert(order.end(), commands.begin(), commands.end());
    order.insert(order.end(), {ok_, cancel_});
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
    PressOnKeys(lvw_, Qt::Key_Insert, add_);
    PressOnKeys(lvw_, Qt::Key_Delete, del_);
}

NoteLine NoteScreen::LineAt(int row) const {
    NoteLine line;
    int column = 0;
    for (const NoteLineField& field : layout_.lineFields) {
        line.*field.member = FromQt(lvw_->Text(row, column++));
    }
    return line;
}

QStringList NoteScreen::TextsOf(const NoteLine& line) const {
    QStringList texts;
    for (const NoteLineField& field : layout_.lineFields) texts << ToQt(line.*field.member);
    return texts;
}

void NoteScreen::AddLine(const NoteLine& line) {
    lvw_->SelectRow(lvw_->AddRow(TextsOf(line)));
}

void NoteScreen::SetLine(int row, const NoteLine& line) {
    lvw_->SetRow(row, TextsOf(line));
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
    for (const NoteLine& line : note.lines) lvw_->AddRow(TextsOf(line));
    for (QPushButton* command : {add_, del_, ok_}) command->setEnabled(false);
    for (QPushButton* command : ownCommands_) command->setEnabled(false);
    print_->setToolTip({});
    print_->setFocus();
}

void NoteScreen::Delete() {
    const int row = lvw_->SelectedOrTell(ToQt(layout_.noLineToDelete));
    if (row >= 0) lvw_->RemoveRow(row);
}

void NoteScreen::Print() {
    PrintReport(this, NoteReport(App().Stock(), kind_, head_->Entered().number));
}

bool NoteScreen::RefuseIncomplete(const GoodsNote& note) {
    QWidget* gap = nullptr;
    if (const NoteField* field = FirstEmptyField(kind_, note)) {
        gap = head_->Box(*field);
    } else if (note.lines.empty()) {
        gap = add_;
    }
    if (gap != nullptr) TellAt(this, ToQt(kIncompleteNote), gap);
    return gap != nullptr;
}

bool NoteScreen::TakeFreeNumber(GoodsNote& note) {
    Connection& stock = App().Stock();
    if (!RowExists(stock, layout_.table, "单据编号", note.number, "N")) return true;
    const std::string next = kind_ == NoteKind::In ? NextEnterNo(stock) : NextPostNo(stock);
    if (!Ask(this, QStringLiteral("编号 %1 已被另一张单据使用。用编号 %2 保存这张单据吗？")
                       .arg(ToQt(note.number), ToQt(next)))) {
        return false;
    }
    note.number = next;
    head_->SetText(&GoodsNote::number, next);
    return true;
}

bool NoteScreen::IsWanted(const GoodsNote& note) {
    if (kind_ == NoteKind::In) return true;
    const std::vector<Shortage> shortages = FindShortages(App().Stock(), note.lines);
    return shortages.empty() ||
           AskToLose(this, QStringLiteral("下面的材料出库后库存量将小于零：\n%1\n仍要出库吗？")
                               .arg(ToQt(ShortageText(shortages))));
}

void NoteScreen::Confirm() {
    GoodsNote note = Entered();
    if (RefuseIncomplete(note)) return;
    if (kind_ == NoteKind::In) head_->SetText(&GoodsNote::amount, AmountOf(note.lines));
    if (!TakeFreeNumber(note) || !IsWanted(note)) return;
    try {
        ConfirmNote(App().Stock(), kind_, note);
    } catch (const NoteCut& cut) {
        // What stands in the store must not be written again by the next try.
        for (std::size_t i = 0; i < cut.LinesWritten(); ++i) lvw_->RemoveRow(0);
        throw;
    } catch (const ColumnError& refusal) {
        if (QWidget* box = head_->BoxOfColumn(refusal.Column())) box->setFocus();
        throw;
    }
    accept();
}

}  // namespace kalvane
