#include "output/screens/settlement_panel.h"

#include <QGridLayout>
#include <QPushButton>

#include "numeric/number.h"
#include "output/screens/tally_files.h"
#include "output/screens/tally_forms.h"
#include "output/settlement_check.h"
#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_output.h"

namespace kalvane {
namespace {
constexpr std::size_t kClientSlot = 4;  // 甲方单位 in a row of 工程
}  // namespace

SettlementPanel::SettlementPanel(OrderChoice choice, QWidget* screen)
    : QGroupBox(QStringLiteral("决算"), screen),
      choice_(std::move(choice)),
      screen_(screen),
      areas_(MakeButton("CmdJS01", QStringLiteral("面积统计表"), this)),
      amounts_(MakeButton("CmdJS02", QStringLiteral("门窗决算表"), this)) {
    QPushButton* settle =
        MakeButton("CmdJS", QStringLiteral("归总"), this, QStringLiteral("按门和窗的综合价计算已选用的门窗"));
    QPushButton* outAreas = MakeButton("cmdOutTJB", QStringLiteral("输出>"), this);
    QPushButton* outAmounts = MakeButton("cmdOutZJB", QStringLiteral("输出>"), this);
    for (QPushButton* report : {areas_, amounts_}) report->setEnabled(false);
    auto* grid = new QGridLayout(this);
    grid->addWidget(settle, 0, 0, 1, 2);
    grid->addWidget(areas_, 1, 0);
    grid->addWidget(outAreas, 1, 1);
    grid->addWidget(amounts_, 2, 0);
    grid->addWidget(outAmounts, 2, 1);
    grid->setRowStretch(3, 1);

    OnSignal(settle, &QPushButton::clicked, screen, [this] { Settle(); });
    OnSignal(areas_, &QPushButton::clicked, screen,
             [this] { PrintReport(screen_, drJSB01(App().Main(), choice_.Head(), Parties())); });
    OnSignal(amounts_, &QPushButton::clicked, screen, [this] {
        Report report = drJSB02(App().Main(), choice_.Head(), Parties());
        AddExactTotal(report, CheckSettlement(App().Main()));
        PrintReport(screen_, report);
    });
    OnSignal(outAreas, &QPushButton::clicked, screen, [this] { Output(OutputView::cmdOutTJB); });
    OnSignal(outAmounts, &QPushButton::clicked, screen, [this] { Output(OutputView::cmdOutZJB); });
}

void SettlementPanel::Settle() {
    const std::vector<WindowEntry> windows = choice_.windows();
    if (windows.empty()) return Tell(screen_, QStringLiteral("决算门窗为空！"));
    ClearSettlement(App().Main());
    if (!AskSettlementPrices(screen_, windows)) return;
    const FieldSlots& slots = SharedFieldSlots();
    FillSettlement(App().Main(), windows, {Val(slots[0]), Val(slots[1])});
    for (QPushButton* report : {areas_, amounts_}) report->setEnabled(true);
}

SettlementParties SettlementPanel::Parties() const {
    LoadRowById(App().Main(), "工程", choice_.project.number, SharedFieldSlots());
    return {SharedFieldSlots()[kClientSlot], MakerName("塑钢公司")};
}

void SettlementPanel::Output(OutputView view) {
    std::optional<FileTable> table = LoadOutput(App().Main(), view);
    if (!table) return;
    std::vector<FileTable> tables = {std::move(*table)};
    const std::vector<SettledRow> rows = CheckSettlement(App().Main());
    if (App().outputFileType == 0 && LosesCents(rows)) tables.push_back(SettlementCheckSheet(rows));
    SaveTables(screen_, tables);
}

}  // namespace kalvane
