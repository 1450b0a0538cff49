#include "wind/screens/wind_result.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QSplitter>
#include <QTextEdit>
#include <QVBoxLayout>

#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/file_export.h"
#include "ui/guard.h"
#include "ui/page_output.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "wind/screens/recheck_panel.h"
#include "wind/sliding_report.h"
#include "wind/wind_document.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(1120, 720);
constexpr int kReportShare = 3;
constexpr int kRecheckShare = 2;
constexpr int kTabPixels = 48;
constexpr int kListHeight = 170;
const PageSetup kSheet{QPageSize::A4, QPageLayout::Portrait, {0, 0, 0, 0}};

QTextCharFormat Letters(float points) {
    QTextCharFormat format;
    format.setFontFamilies({QString::fromUtf8(kSlidingFamily), QApplication::font().family()});
    format.setFontPointSize(points);
    return format;
}

/// Title and body in their letters; what is beyond the body keeps those of the box.
void ShowSlidingReport(QTextEdit* box, const QString& text) {
    box->clear();
    QTextCursor cursor(box->document());
    cursor.insertText(text.left(kSlidingTitleLength), Letters(kSlidingTitlePoints));
    cursor.insertText(text.mid(kSlidingTitleLength, kSlidingBodyLength), Letters(kSlidingBodyPoints));
    cursor.insertText(text.mid(kSlidingTitleLength + kSlidingBodyLength), QTextCharFormat());
    box->moveCursor(QTextCursor::Start);
}

void ShowResult(const WindResult::Look& look, const CheckRun& run, QWidget* parent) {
    if (!run.checks.empty()) {
        WindResult(look, run, parent).exec();
        return;
    }
    QStringList lines;
    for (const std::string& skipped : run.skipped) lines << ToQt(skipped);
    Tell(parent, QStringLiteral("所选的门窗都不能校核：\n") + lines.join(QLatin1Char('\n')));
}

}  // namespace

void ShowSlidingResult(const CheckRun& run, QWidget* parent) {
    ShowResult({"frmFyResult", "风压校核结果", "rtResult", "Command1", "退出", "塑钢门窗抗风压校核报告"}, run,
               parent);
}

void ShowFullResult(const CheckRun& run, QWidget* parent) {
    ShowResult({"FrmResultFY01", "风压校核结果", "RTB", "CmdPrint", "返回", "建筑门窗框、扇及玻璃校核报告"},
               run, parent);
}

WindResult::WindResult(const Look& look, CheckRun run, QWidget* parent)
    : Screen(QLatin1String(look.name), QString::fromUtf8(look.title), parent),
      look_(look),
      run_(std::move(run)),
      report_(new QTextEdit(this)),
      recheck_(new RecheckPanel(this)),
      annex_(new QCheckBox(QStringLiteral("打印和保存时附上复核"), this)) {
    report_->setObjectName(QLatin1String(look.report));
    report_->setReadOnly(true);
    report_->setTabStopDistance(kTabPixels);
    annex_->setObjectName(QStringLiteral("chkFH"));
    annex_->setChecked(true);
    auto* both = new QSplitter(Qt::Horizontal, this);
    both->addWidget(report_);
    both->addWidget(recheck_);
    both->setStretchFactor(0, kReportShare);
    both->setStretchFactor(1, kRecheckShare);
    auto* body = new QWidget(this);
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    if (run_.checks.size() + run_.skipped.size() > 1) rows->addWidget(MakeList());
    rows->addWidget(both, 1);

    QPushButton* print = MakeButton(look.print, QStringLiteral("打印"), this);
    QPushButton* pdf = MakeButton("CmdPDF", QStringLiteral("另存为PDF"), this);
    QPushButton* text = MakeButton("CmdText", QStringLiteral("另存为文本文件"), this);
    QPushButton* exit = MakeButton("OKButton", QString::fromUtf8(look.exit), this);
    exit->setDefault(true);
    LayOutAboveButtons(this, body, {print, pdf, text, exit}, annex_);
    resize(kFirstSize);
    ShowCheck(0);

    OnSignal(print, &QPushButton::clicked, this, [this] { Print(); });
    OnSignal(pdf, &QPushButton::clicked, this, [this] { SavePdf(); });
    OnSignal(text, &QPushButton::clicked, this, [this] { SaveText(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
}

QWidget* WindResult::MakeList() {
    const Report table = VerdictTable(run_);
    QStringList columns;
    for (const ReportColumn& column : table.columns) columns << ToQt(column.head);
    auto* list = new ReportList(QStringLiteral("LvwJL"), columns, this);
    list->KeepOrder();
    for (const auto& row : table.rows) {
        QStringList texts;
        for (const std::string& text : row) texts << ToQt(text);
        list->AddRow(texts);
    }
    for (const std::string& skipped : run_.skipped) {
        list->AddRow({QString(), ToQt(skipped), QStringLiteral("未校核")});
    }
    list->setMaximumHeight(kListHeight);
    OnSignal(list, &ReportList::itemSelectionChanged, this, [this, list] {
        const int row = list->SelectedRow();
        if (row >= 0 && row < static_cast<int>(run_.checks.size())) ShowCheck(static_cast<std::size_t>(row));
    });
    return list;
}

void WindResult::ShowCheck(std::size_t place) {
    const WindowCheck& check = run_.checks[place];
    const QString text = ToQt(JoinedLines(check.lines));
    if (check.isSliding) {
        ShowSlidingReport(report_, text);
    } else {
        report_->setPlainText(text);
    }
    recheck_->Show(check.recheck);
}

void WindResult::Print() {
    PrintDocument(this, QString::fromUtf8(look_.file), kSheet,
                  [this](PageTarget& page) { PaintCheckRun(page, run_, annex_->isChecked()); });
}

void WindResult::SavePdf() {
    const QString title = QString::fromUtf8(look_.file);
    ExportPdf(this, QStringLiteral("wind"), title, [&](const std::filesystem::path& file) {
        const auto paint = [this](PageTarget& page) { PaintCheckRun(page, run_, annex_->isChecked()); };
        PageDocument(title, kSheet, paint).WritePdf(file);
    });
}

void WindResult::SaveText() {
    ExportText(
        this, QStringLiteral("wind"), QString::fromUtf8(look_.file),
        [this](const std::filesystem::path& file) { SaveCheckRunText(file, run_, annex_->isChecked()); });
}

}  // namespace kalvane
