#include "output/screens/tally_panel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "output/cents.h"
#include "output/gathering_record.h"
#include "output/material_summary.h"
#include "output/screens/tally_files.h"
#include "output/screens/tally_forms.h"
#include "output/tally_check.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/report_output.h"
#include "ui/text.h"

namespace kalvane {
namespace {

QCheckBox* MakeClass(const char* name, const QString& caption, QWidget* parent) {
    auto* box = new QCheckBox(caption, parent);
    box->setObjectName(QLatin1String(name));
    box->setChecked(true);
    return box;
}

std::vector<WindowEntry> GatheredWindows() {
    const std::optional<GatheringRecord> record = LoadGatheringRecord(App().Main());
    return record ? record->windows : std::vector<WindowEntry>();
}

}  // namespace

TallyPanel::TallyPanel(OrderChoice choice, QWidget* screen)
    : QGroupBox(QStringLiteral("统计"), screen),
      choice_(std::move(choice)),
      screen_(screen),
      profile_(MakeClass("chkXC", QStringLiteral(" 型  材"), this)),
      steel_(MakeClass("chkXG", QStringLiteral(" 型  钢"), this)),
      panel_(MakeClass("chkPC", QStringLiteral(" 板  材"), this)),
      fitting_(MakeClass("chkPJ", QStringLiteral(" 配  件"), this)),
      gather_(
          MakeButton("CmdTJ", QStringLiteral("归总"), this, QStringLiteral("按已选用的门窗重新归总材料"))),
      quantities_(MakeButton("CmdTJ01", QStringLiteral("统计表 "), this)),
      prices_(MakeButton("CmdTJ02", QStringLiteral("造价表"), this)),
      details_(MakeButton("CmdTJ03", QStringLiteral("明细表"), this)),
      gathering_(new QLabel(this)) {
    const QString output = QStringLiteral("输出>");
    QPushButton* out1 = MakeButton("CmdOut1", output, this);
    QPushButton* out2 = MakeButton("cmdOut2", output, this);
    QPushButton* out3 = MakeButton("cmdOut3", output, this);
    for (QPushButton* report : {quantities_, prices_, details_}) report->setEnabled(false);
    LayOut({{quantities_, out1}, {prices_, out2}, {details_, out3}});

    OnSignal(gather_, &QPushButton::clicked, screen, [this] { Gather(); });
    OnSignal(quantities_, &QPushButton::clicked, screen, [this] { ShowQuantities(TallyView::Summary); });
    OnSignal(prices_, &QPushButton::clicked, screen, [this] { ShowPrices(); });
    OnSignal(details_, &QPushButton::clicked, screen, [this] { ShowQuantities(TallyView::Detail); });
    OnSignal(out1, &QPushButton::clicked, screen, [this] { Output(OutputView::CmdOut1); });
    OnSignal(out2, &QPushButton::clicked, screen, [this] { Output(OutputView::cmdOut2); });
    OnSignal(out3, &QPushButton::clicked, screen, [this] { Output(OutputView::cmdOut3); });
    Guarded(screen, [this] { ShowGathering(); });
}

void TallyPanel::LayOut(const std::vector<std::pair<QPushButton*, QPushButton*>>& rows) {
    gathering_->setObjectName(QStringLiteral("lblGZ"));
    gathering_->setWordWrap(true);
    auto* grid = new QGridLayout(this);
    int row = 0;
    for (QCheckBox* box : {profile_, steel_, panel_, fitting_}) grid->addWidget(box, row++, 0);
    grid->addWidget(gather_, 0, 1, 1, 2);
    row = 0;
    for (const auto& [report, output] : rows) {
        grid->addWidget(report, ++row, 1);
        grid->addWidget(output, row, 2);
    }
    grid->addWidget(gathering_, row + 1, 0, 1, 3);
    grid->setRowStretch(row + 2, 1);
}

ClassChoice TallyPanel::Classes() const {
    return {profile_->isChecked(), steel_->isChecked(), panel_->isChecked(), fitting_->isChecked()};
}

void TallyPanel::Gather() {
    const std::vector<WindowEntry> windows = choice_.windows();
    if (windows.empty()) return Tell(screen_, QStringLiteral("统计门窗为空！"));
    MessageNotice notice(screen_);
    const bool isWhole = Guarded(screen_, [&] {
        GatherAndRecord(App().Main(), choice_.project.name, windows, FromQt(TimeText()), notice);
    });
    ShowGathering();
    if (!isWhole) return;
    for (QPushButton* report : {quantities_, prices_, details_}) report->setEnabled(true);
}

void TallyPanel::ShowGathering() {
    const std::optional<GatheringRecord> record = LoadGatheringRecord(App().Main());
    gathering_->setText(record ? ToQt(record->Text()) : QStringLiteral("还没有归总。"));
}

void TallyPanel::TellIfOlder() {
    const std::optional<GatheringRecord> record = LoadGatheringRecord(App().Main());
    if (!record || record->IsOf(choice_.windows())) return;
    Tell(screen_,
         QStringLiteral("这是较早的归总，与现在已选用的门窗不同：\n%1\n要按现在的门窗，请先按“归总”。")
             .arg(ToQt(record->Text())));
}

void TallyPanel::Show(Report report, TallyView view) {
    const std::vector<CheckedRow> rows = CheckTally(App().Main(), Classes(), view);
    MarkPrices(report, rows, PriceNote(App().Main(), rows, view, GatheredWindows()));
    TellIfOlder();
    PrintReport(screen_, report);
}

void TallyPanel::ShowQuantities(TallyView view) {
    if (view == TallyView::Summary) {
        BuildMaterialSummary(App().Main(), Classes(), SharedFieldSlots(), App().tally);
        SetMaterialLabels(App().tally, Classes(), MakerName(""));
    } else {
        BuildMaterialDetail(App().Main(), Classes(), SharedFieldSlots());
    }
    Show(drTJCL01(App().Main(), choice_.Head(), App().tally), view);
}

void TallyPanel::ShowPrices() {
    BuildMaterialSummary(App().Main(), Classes(), SharedFieldSlots(), App().tally);
    AskFees(screen_);
    const OrderFees fees = WorkOutFees(App().Main(), choice_.windows(), SharedFieldSlots());
    Report report = drTJCL02(App().Main(), choice_.Head(), MakerName(""), fees);
    const std::vector<CheckedRow> rows = CheckTally(App().Main(), Classes(), TallyView::Summary);
    const double exact = ExactOrderTotal(rows, choice_.windows(), SharedFieldSlots());
    report.closing.push_back({"其中有单价的材料和费用（准确到分）：" + CentsText(exact) + " 元"});
    Show(std::move(report), TallyView::Summary);
}

void TallyPanel::Output(OutputView view) {
    RebuildForOutput(App().Main(), view, Classes(), SharedFieldSlots(), App().tally);
    std::optional<FileTable> table = LoadOutput(App().Main(), view);
    if (!table) return;
    const TallyView tally = *TallyViewOf(view);
    const std::vector<CheckedRow> rows = CheckTally(App().Main(), Classes(), tally);
    for (const std::string& line : PriceNote(App().Main(), rows, tally, GatheredWindows())) {
        table->below.push_back({line});
    }
    std::vector<FileTable> tables = {std::move(*table)};
    const bool isWorkbook = App().outputFileType == 0;
    if (isWorkbook && NeedsCheckSheet(rows)) tables.push_back(CheckSheet(rows));
    TellIfOlder();
    SaveTables(screen_, tables);
}

}  // namespace kalvane
