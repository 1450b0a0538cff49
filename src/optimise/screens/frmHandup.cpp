#include "optimise/screens/frmHandup.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTime>
#include <QVBoxLayout>
#include <array>

#include "numeric/number.h"
#include "optimise/demand_paste.h"
#include "optimise/screens/frmResult.h"
#include "optimise/screens/piece_entry.h"
#include "optimise/screens/run_panel.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/number_filter.h"
#include "ui/report_list.h"
#include "ui/shown.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(640, 560);
const QString kFolderPurpose = QStringLiteral("demand");
const QString kFileFilter = QStringLiteral("化数据文件*.DDD|*.DDD");

}  // namespace

frmHandup::frmHandup(QWidget* parent)
    : EntryScreen(QStringLiteral("frmHandup"),
                  QStringLiteral("手工优化  控制结点数：%1").arg(App().optimise.NODES), parent),
      entry_(new PieceEntry(this)),
      lvw_(new ReportList(QStringLiteral("lvw"), {QStringLiteral("长度"), QStringLiteral("数量")}, this)),
      total_(new QLabel(this)),
      label4_(new QLabel(this)),
      runPanel_(new RunPanel(this)),
      statusBar_(new QStatusBar(this)) {
    label4_->setObjectName(QStringLiteral("Label4"));
    label4_->hide();
    statusBar_->setObjectName(QStringLiteral("StatusBar"));
    lvw_->SelectSeveral();

    QPushButton* remove = MakeButton("CmdDel", QStringLiteral("删除 &D"), this);
    QPushButton* paste = MakeButton("CmdPaste", QStringLiteral("粘贴 &V"), this,
                                    QStringLiteral("从电子表格粘贴两列：长度、数量（Ctrl+V）"));
    QPushButton* open = MakeButton("CmdOpen", QStringLiteral("打开数据 &O"), this);
    QPushButton* save = MakeButton("CmdSave", QStringLiteral("保存数据 &S"), this);
    QPushButton* run = MakeButton("OKButton", QStringLiteral("优化"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);

    auto* side = new QVBoxLayout;
    for (QPushButton* button : {remove, paste, open, save}) side->addWidget(button);
    side->addStretch();
    for (QPushButton* button : {run, cancel}) side->addWidget(button);
    auto* list = new QVBoxLayout;
    list->addWidget(lvw_, 1);
    list->addWidget(total_);
    auto* middle = new QHBoxLayout;
    middle->addLayout(list, 1);
    middle->addLayout(side);
    auto* all = new QVBoxLayout(this);
    all->addWidget(entry_);
    all->addLayout(middle, 1);
    for (QWidget* part : std::initializer_list<QWidget*>{label4_, runPanel_, statusBar_})
        all->addWidget(part);
    resize(kFirstSize);

    EnterWalks(std::array{entry_->MaterialBox(), entry_->LengthBox(), entry_->CountBox()});
    EnterMovesTo(entry_->CountBox(), entry_->AddButton());
    PressOnKeys(lvw_, Qt::Key_Delete, remove);
    PressOnKeys(lvw_, QKeySequence::Paste, paste);
    OnSignal(entry_, &PieceEntry::TablePasted, this, [this] { Paste(); });
    OnSignal(entry_->AddButton(), &QPushButton::clicked, this, [this] { Add(); });
    OnSignal(remove, &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(paste, &QPushButton::clicked, this, [this] { Paste(); });
    OnSignal(open, &QPushButton::clicked, this, [this] { Open(); });
    OnSignal(save, &QPushButton::clicked, this, [this] { Save(); });
    const auto runGuarded = [this] {
        Guarded(
            this, [this] { Run(); }, QStringLiteral("出错"));
    };
    connect(run, &QPushButton::clicked, this, runGuarded);
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    ShowTotal();
}

void frmHandup::done(int result) {
    if (runPanel_->IsRunning()) return runPanel_->CancelRun();  // the screen must not go away under its run
    EntryScreen::done(result);
}

void frmHandup::Add() {
    const ManualRow row = entry_->Row();
    if (const auto failure = CheckManualRow(row, App().optimise)) {
        UseDialogs().Message(this, ToQt(failure->message), PromptTitle(), failure->icon);
        entry_->FocusOn(failure->field);
        return;
    }
    AddRows({row});
    entry_->StartRow();
}

void frmHandup::Delete() {
    if (lvw_->SelectedOrTell(QStringLiteral("无删除数据！")) < 0) return;
    const std::vector<int> rows = lvw_->SelectedRows();
    for (auto doomed = rows.rbegin(); doomed != rows.rend(); ++doomed) lvw_->RemoveRow(*doomed);
    ShowTotal();
}

void frmHandup::Paste() {
    const std::string text = FromQt(PlainDigits(QGuiApplication::clipboard()->text()));
    const PastedDemand pasted = ParsePastedDemand(text, App().optimise);
    AddRows(pasted.rows);
    if (!pasted.complaints.IsEmpty()) {
        Tell(this, ToQt(pasted.complaints.Message()));
    } else if (pasted.rows.empty()) {
        Tell(this, QStringLiteral("剪贴板中没有长度和数量两列数据。"));
    }
}

void frmHandup::Open() {
    const QString file = UseDialogs().OpenFileName(this, kFolderPurpose, kFileFilter);
    std::vector<ManualRow> rows;
    if (file.isEmpty()) return;
    Guarded(
        this, [&] { ReadDemandFile(FromQt(file), rows); }, PromptTitle());
    AddRows(rows);  // also those before a place where the file is damaged
}

void frmHandup::Save() {
    if (lvw_->RowCount() == 0) return Tell(this, QStringLiteral("数据为空不能保存！"));
    const QString file = UseDialogs().SaveFileName(
        this, {kFolderPurpose, kFileFilter, QStringLiteral("DDD"), entry_->Material()});
    if (!file.isEmpty()) WriteDemandFile(FromQt(file), Rows());
}

void frmHandup::Run() {
    if (runPanel_->IsRunning()) return;
    if (entry_->Material().isEmpty()) {
        return TellAt(this, QStringLiteral("材料名称不能为空！"), entry_->MaterialBox());
    }
    const std::vector<ManualRow> rows = Rows();
    if (rows.empty()) return Tell(this, QStringLiteral("优化的数据不能为空！"));
    const auto now = [] { return QTime::currentTime().toString(QStringLiteral("HH:mm:ss")); };
    label4_->setText(QStringLiteral("稍候优化正在进行中......"));
    const QString start = QStringLiteral("起始时间：") + now();
    {
        const Shown shown(label4_);
        statusBar_->showMessage(start);
        MessageNotice notice(this);
        runPanel_->Run(
            [&](const RunProgress& progress) {
                return RunManual(App().Main(), App().optimise, App().YHScheme, FromQt(entry_->Material()),
                                 rows, notice, progress);
            },
            [this](const RunStage& stage) {
                runPanel_->Bar().setRange(0, stage.pieces);
                runPanel_->Bar().setValue(stage.placed);
                return QStringLiteral("已排 %1 / %2 件").arg(stage.placed).arg(stage.pieces);
            });
        statusBar_->showMessage(start + QStringLiteral(" 结束时间：") + now());
    }
    frmResult(this).exec();
}

void frmHandup::AddRows(const std::vector<ManualRow>& rows) {
    QList<QStringList> texts;
    for (const ManualRow& row : rows) texts << QStringList{ToQt(row.length), ToQt(row.count)};
    lvw_->AddRows(texts);
    lvw_->scrollToBottom();
    ShowTotal();
}

std::vector<ManualRow> frmHandup::Rows() const {
    std::vector<ManualRow> rows;
    rows.reserve(static_cast<std::size_t>(lvw_->RowCount()));
    for (int row = 0; row < lvw_->RowCount(); ++row) {
        rows.push_back({FromQt(lvw_->Text(row, 0)), FromQt(lvw_->Text(row, 1))});
    }
    return rows;
}

void frmHandup::ShowTotal() {
    double pieces = 0;
    for (const ManualRow& row : Rows()) pieces += Val(row.count);
    total_->setText(QStringLiteral("共 %1 行，%2 件").arg(lvw_->RowCount()).arg(pieces));
}

}  // namespace kalvane
