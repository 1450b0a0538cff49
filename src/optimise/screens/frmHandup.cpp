#include "optimise/screens/frmHandup.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTime>
#include <QVBoxLayout>

#include "numeric/number.h"
#include "optimise/demand_paste.h"
#include "optimise/screens/frmResult.h"
#include "optimise/screens/run_panel.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/digit_filter.h"
#include "ui/digits_only.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/report_list.h"
#include "ui/shown.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(640, 560);
constexpr int kNumberWidth = 110;
const QString kPrompt = QStringLiteral("提示");
const QString kFolderPurpose = QStringLiteral("demand");
const QString kFileFilter = QStringLiteral("化数据文件*.DDD|*.DDD");

QString Now() {
    return QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
}

bool IsTable(const QString& text) {
    return text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\t')) ||
           text.contains(QLatin1Char(','));
}

}  // namespace

frmHandup::frmHandup(QWidget* parent)
    : EntryScreen(QStringLiteral("frmHandup"),
                  QStringLiteral("手工优化  控制结点数：%1").arg(App().optimise.NODES), parent),
      txtName_(MakeBox(QStringLiteral("TxtName"), this)),
      txtCD_(MakeBox(QStringLiteral("TxtCD"), this)),
      txtSL_(MakeBox(QStringLiteral("TxtSL"), this)),
      cmdAdd_(MakeButton("CmdAdd", QStringLiteral("添加 &A"), this)),
      lvw_(new ReportList(QStringLiteral("lvw"), {QStringLiteral("长度"), QStringLiteral("数量")}, this)),
      total_(new QLabel(this)),
      label4_(new QLabel(this)),
      runPanel_(new RunPanel(this)),
      statusBar_(new QStatusBar(this)) {
    label4_->setObjectName(QStringLiteral("Label4"));
    label4_->hide();
    statusBar_->setObjectName(QStringLiteral("StatusBar"));
    for (QLineEdit* box : {txtCD_, txtSL_}) {
        box->setValidator(new DigitsOnly(box, DigitsOnly::Points::Allowed));
        box->setFixedWidth(kNumberWidth);
        box->installEventFilter(this);
    }

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
    side->addWidget(run);
    side->addWidget(cancel);
    auto* list = new QVBoxLayout;
    list->addWidget(lvw_, 1);
    list->addWidget(total_);
    auto* middle = new QHBoxLayout;
    middle->addLayout(list, 1);
    middle->addLayout(side);
    auto* all = new QVBoxLayout(this);
    all->addWidget(MakeEntry());
    all->addLayout(middle, 1);
    all->addWidget(label4_);
    all->addWidget(runPanel_);
    all->addWidget(statusBar_);
    resize(kFirstSize);

    EnterMovesTo(txtName_, txtCD_);
    EnterMovesTo(txtCD_, txtSL_);
    EnterMovesTo(txtSL_, cmdAdd_);
    PressOnKey(lvw_, Qt::Key_Delete, remove);
    auto* pasteKey = new QShortcut(QKeySequence(QKeySequence::Paste), lvw_);
    pasteKey->setContext(Qt::WidgetShortcut);
    OnSignal(pasteKey, &QShortcut::activated, this, [this] { Paste(); });
    OnSignal(cmdAdd_, &QPushButton::clicked, this, [this] { Add(); });
    OnSignal(remove, &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(paste, &QPushButton::clicked, this, [this] { Paste(); });
    OnSignal(open, &QPushButton::clicked, this, [this] { Open(); });
    OnSignal(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(run, &QPushButton::clicked, this, [this] {
        Guarded(
            this, [this] { Run(); }, QStringLiteral("出错"));
    });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { reject(); });
    ShowTotal();
}

QWidget* frmHandup::MakeEntry() {
    auto* entry = new QWidget(this);
    auto* name = new QHBoxLayout;
    name->addWidget(new QLabel(QStringLiteral("材料名称：")));
    name->addWidget(txtName_, 1);
    auto* numbers = new QHBoxLayout;
    numbers->addWidget(new QLabel(QStringLiteral("长度：")));
    numbers->addWidget(txtCD_);
    numbers->addWidget(new QLabel(QStringLiteral("数量：")));
    numbers->addWidget(txtSL_);
    numbers->addWidget(cmdAdd_);
    numbers->addStretch();
    auto* rows = new QVBoxLayout(entry);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(name);
    rows->addLayout(numbers);
    return entry;
}

void frmHandup::done(int result) {
    if (!runPanel_->RefusesToClose()) EntryScreen::done(result);
}

/// A table pasted into a number box goes to the list, instead of losing all that parts its numbers.
bool frmHandup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return EntryScreen::eventFilter(watched, event);
    const bool pastes = static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste);
    if (!pastes || !IsTable(QGuiApplication::clipboard()->text().trimmed())) {
        return EntryScreen::eventFilter(watched, event);
    }
    Guarded(this, [this] { Paste(); });
    return true;
}

void frmHandup::Add() {
    const ManualRow row{FromQt(txtCD_->text()), FromQt(txtSL_->text())};
    if (const auto failure = CheckManualRow(row, App().optimise)) {
        UseDialogs().Message(this, ToQt(failure->message), kPrompt, failure->icon);
        (failure->field == ManualRowFailure::Field::Length ? txtCD_ : txtSL_)->setFocus();
        return;
    }
    AddRows({row});
    txtCD_->clear();
    txtSL_->clear();
    txtCD_->setFocus();
}

void frmHandup::Delete() {
    const int row = lvw_->SelectedRow();
    if (row < 0) {
        Tell(QStringLiteral("无删除数据！"));
        return;
    }
    lvw_->RemoveRow(row);
    ShowTotal();
}

void frmHandup::Paste() {
    const std::string text = FromQt(PlainDigits(QGuiApplication::clipboard()->text()));
    const PastedDemand pasted = ParsePastedDemand(text, App().optimise);
    AddRows(pasted.rows);
    if (!pasted.complaints.IsEmpty()) {
        Tell(ToQt(pasted.complaints.Message()));
    } else if (pasted.rows.empty()) {
        Tell(QStringLiteral("剪贴板中没有长度和数量两列数据。"));
    }
}

void frmHandup::Open() {
    const QString file = UseDialogs().OpenFileName(this, kFolderPurpose, kFileFilter);
    if (file.isEmpty()) return;
    std::vector<ManualRow> rows;
    const auto read = [&] { ReadDemandFile(FromQt(file), rows); };
    Guarded(this, read, kPrompt);
    AddRows(rows);  // also those before a place where the file is damaged
}

void frmHandup::Save() {
    if (lvw_->RowCount() == 0) {
        Tell(QStringLiteral("数据为空不能保存！"));
        return;
    }
    const QString file =
        UseDialogs().SaveFileName(this, kFolderPurpose, kFileFilter, QStringLiteral("DDD"), true);
    if (!file.isEmpty()) WriteDemandFile(FromQt(file), Rows());
}

void frmHandup::Run() {
    if (runPanel_->IsRunning()) return;
    if (txtName_->text().isEmpty()) {
        Tell(QStringLiteral("材料名称不能为空！"));
        txtName_->setFocus();
        return;
    }
    const std::vector<ManualRow> rows = Rows();
    if (rows.empty()) {
        Tell(QStringLiteral("优化的数据不能为空！"));
        return;
    }
    label4_->setText(QStringLiteral("稍候优化正在进行中......"));
    const QString start = QStringLiteral("起始时间：") + Now();
    {
        const Shown shown(label4_);
        statusBar_->showMessage(start);
        MessageNotice notice(this);
        runPanel_->Run(
            [&](const RunProgress& progress) {
                return RunManual(App().Main(), App().optimise, App().YHScheme, FromQt(txtName_->text()), rows,
                                 notice, progress);
            },
            [this](const RunStage& stage) {
                runPanel_->Bar().setRange(0, stage.pieces);
                runPanel_->Bar().setValue(stage.placed);
                return QStringLiteral("已排 %1 / %2 件").arg(stage.placed).arg(stage.pieces);
            });
        statusBar_->showMessage(start + QStringLiteral(" 结束时间：") + Now());
    }
    frmResult(this).exec();
}

void frmHandup::AddRows(const std::vector<ManualRow>& rows) {
    for (const ManualRow& row : rows) lvw_->AddRow({ToQt(row.length), ToQt(row.count)});
    lvw_->scrollToBottom();
    ShowTotal();
}

std::vector<ManualRow> frmHandup::Rows() const {
    std::vector<ManualRow> rows;
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

void frmHandup::Tell(const QString& text) {
    UseDialogs().Message(this, text, kPrompt, NoticeIcon::Information);
}

}  // namespace kalvane
