#include "optimise/screens/frmResult.h"

#include <QDate>
#include <QPushButton>
#include <QTabWidget>

#include "optimise/piece_labels.h"
#include "optimise/plan.h"
#include "optimise/plan_file.h"
#include "optimise/plan_report.h"
#include "optimise/plan_yield.h"
#include "optimise/screens/cut_diagram_view.h"
#include "optimise/screens/yield_columns.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/file_export.h"
#include "ui/guard.h"
#include "ui/page_output.h"
#include "ui/report_list.h"
#include "ui/report_output.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(860, 600);
const QStringList kTotalHeadings{QStringLiteral("材料名称"), QStringLiteral("数量"),
                                 QStringLiteral("优化比率")};
const QString kFolderPurpose = QStringLiteral("plan");

template <typename Row>
void AddRows(ReportList& list, const std::vector<Row>& rows) {
    QList<QStringList> lines;
    for (const Row& row : rows) {
        QStringList& texts = lines.emplace_back();
        for (const std::string& text : row) texts << ToQt(text);
    }
    list.AddRows(lines);
}

}  // namespace

frmResult::frmResult(QWidget* parent)
    : Screen(QStringLiteral("frmResult"), QStringLiteral("优化结果"), parent),
      lvw1_(new ReportList(QStringLiteral("Lvw1"),
                           {QStringLiteral("材料名称"), QStringLiteral("切割规格"), QStringLiteral("数量"),
                            QStringLiteral("优化比率"), QStringLiteral("剩余料长")})),
      lvw2_(new ReportList(QStringLiteral("Lvw2"), kTotalHeadings + YieldColumns::Headings())),
      yield_(new YieldColumns(lvw2_, static_cast<int>(kTotalHeadings.size()))),
      diagram_(new CutDiagramView) {
    QPushButton* printCuts = MakeButton("cmdPrint", QStringLiteral("&P 打印切割"), this);
    QPushButton* printTotals = MakeButton("cmdPrint1", QStringLiteral("&P 打印统计"), this);
    QPushButton* save = MakeButton("CmdSave", QStringLiteral("&S 输出"), this,
                                   QStringLiteral("按“设置”中的导出文件类型输出两张表"));
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("&E 返回"), this);
    save->setDefault(true);

    QPushButton* printDiagram = MakeButton("CmdPrintCut", QStringLiteral("切割图… &G"), this,
                                           QStringLiteral("预览切割图，打印或存为 PDF"));
    QPushButton* printLabels = MakeButton("CmdLabels", QStringLiteral("标签… &L"), this,
                                          QStringLiteral("每件料一张标签，每页 3 x 8 张，打印或存为 PDF"));
    auto* cuts = new QWidget;
    LayOutAboveButtons(cuts, diagram_, {printDiagram, printLabels});

    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("Tab1"));
    tabs->addTab(lvw1_, QStringLiteral("材料切割表"));
    tabs->addTab(lvw2_, QStringLiteral("材料统计表"));
    tabs->addTab(cuts, QStringLiteral("切割图"));
    LayOutAboveButtons(this, tabs, {printCuts, printTotals, save, exit});
    resize(kFirstSize);

    OnSignal(printDiagram, &QPushButton::clicked, this, [this] { PrintDiagram(); });
    OnSignal(printLabels, &QPushButton::clicked, this, [this] { PrintLabels(); });
    OnSignal(save, &QPushButton::clicked, this, [this] { Export(); });
    OnSignal(printCuts, &QPushButton::clicked, this,
             [this] { PrintReport(this, dsYHB(App().Main(), App().optimiseProjectName)); });
    OnSignal(printTotals, &QPushButton::clicked, this,
             [this] { PrintReport(this, dsYHBT(App().Main(), App().optimiseProjectName)); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { Load(); });
}

void frmResult::Load() {
    const std::vector<PlanRow> plan = LoadSummedPlan(App().Main());
    AddRows(*lvw1_, CutTable(plan));
    AddRows(*lvw2_, LoadTotalTable(App().Main()));
    yield_->Show(PlanYield(plan, App().optimise), App().optimise.CLC);
    diagram_->Show(std::make_unique<CutDiagram>(plan, App().optimise));
}

void frmResult::PrintDiagram() {
    const CutDiagram diagram(LoadSummedPlan(App().Main()), App().optimise);
    PageSetup setup;
    setup.orientation = QPageLayout::Landscape;
    PrintOrTell(diagram.RowCount() == 0, QStringLiteral("切割图"), setup,
                [&](PageTarget& target) { diagram.PaintPages(target, App().optimiseProjectName); });
}

void frmResult::PrintLabels() {
    const std::vector<PieceLabel> labels = PieceLabels(LoadSummedPlan(App().Main()));
    PageSetup setup;
    setup.margins = QMarginsF();
    PrintOrTell(labels.empty(), QStringLiteral("切割标签"), setup,
                [&](PageTarget& target) { PaintLabels(target, labels); });
}

void frmResult::PrintOrTell(bool isEmpty, const QString& title, const PageSetup& setup,
                            const PaintPages& paint) {
    if (isEmpty) return Tell(this, QStringLiteral("没有优化结果。"));
    PrintDocument(this, title, setup, paint);
}

void frmResult::Export() {
    const PlanOutput plan =
        LoadPlanOutput(App().Main(), App().optimiseProjectName,
                       FromQt(QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd"))));
    const QString name = ToQt(App().optimiseProjectName) + QStringLiteral("-材料优化");
    if (App().outputFileType != 0) {
        ExportText(this, kFolderPurpose, name, [&](const auto& file) { SavePlanText(plan, file); });
    } else {
        ExportWorkbook(
            this, kFolderPurpose, name, [&](const auto& file) { PlanWorkbook(plan).Save(file); },
            QStringLiteral("确认您的系统中是否安装了Excel软件或版本不兼容！"));
    }
}

}  // namespace kalvane
