#include "optimise/screens/frmResult.h"

#include <QDate>
#include <QDesktopServices>
#include <QGroupBox>
#include <QPushButton>
#include <QSplitter>
#include <QUrl>
#include <QVBoxLayout>

#include "app/app_state.h"
#include "optimise/plan.h"
#include "optimise/plan_report.h"
#include "optimise/plan_text.h"
#include "optimise/plan_workbook.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/report_output.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(860, 600);
const QString kFolderPurpose = QStringLiteral("plan");

QWidget* Framed(const QString& title, QWidget* list) {
    auto* frame = new QGroupBox(title);
    auto* inside = new QVBoxLayout(frame);
    inside->addWidget(list);
    return frame;
}

template <typename Row>
void AddRows(ReportList& list, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        QStringList texts;
        for (const std::string& text : row) texts << ToQt(text);
        list.AddRow(texts);
    }
}

}  // namespace

frmResult::frmResult(QWidget* parent)
    : Screen(QStringLiteral("frmResult"), QStringLiteral("优化结果"), parent),
      lvw1_(new ReportList(QStringLiteral("Lvw1"),
                           {QStringLiteral("材料名称"), QStringLiteral("切割规格"), QStringLiteral("数量"),
                            QStringLiteral("优化比率"), QStringLiteral("剩余料长")})),
      lvw2_(new ReportList(QStringLiteral("Lvw2"), {QStringLiteral("材料名称"), QStringLiteral("数量"),
                                                    QStringLiteral("优化比率")})) {
    QPushButton* printCuts = MakeButton("cmdPrint", QStringLiteral("&P 打印切割"), this);
    QPushButton* printTotals = MakeButton("cmdPrint1", QStringLiteral("&P 打印统计"), this);
    QPushButton* save = MakeButton("CmdSave", QStringLiteral("&S 输出"), this,
                                   QStringLiteral("按“设置”中的导出文件类型输出两张表"));
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("&E 返回"), this);
    save->setDefault(true);

    auto* frames = new QSplitter(Qt::Vertical, this);
    frames->setChildrenCollapsible(false);
    frames->addWidget(Framed(QStringLiteral("材料切割表"), lvw1_));
    frames->addWidget(Framed(QStringLiteral("材料统计表"), lvw2_));
    frames->setStretchFactor(0, 2);
    frames->setStretchFactor(1, 1);
    LayOutAboveButtons(this, frames, {printCuts, printTotals, save, exit});
    resize(kFirstSize);

    OnSignal(save, &QPushButton::clicked, this, [this] { PutOut(); });
    OnSignal(printCuts, &QPushButton::clicked, this,
             [this] { PrintReport(this, dsYHB(App().Main(), App().optimiseProjectName)); });
    OnSignal(printTotals, &QPushButton::clicked, this,
             [this] { PrintReport(this, dsYHBT(App().Main(), App().optimiseProjectName)); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { reject(); });
    Guarded(this, [this] { Load(); });
}

void frmResult::Load() {
    AddRows(*lvw1_, LoadCutTable(App().Main()));
    AddRows(*lvw2_, LoadTotalTable(App().Main()));
}

void frmResult::PutOut() {
    const PlanOutput plan =
        LoadPlanOutput(App().Main(), App().optimiseProjectName,
                       FromQt(QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd"))));
    if (App().outputFileType != 0) {
        PutOutText(plan);
    } else {
        PutOutWorkbook(plan);
    }
}

void frmResult::PutOutText(const PlanOutput& plan) {
    const QString file = UseDialogs().SaveFileName(this, kFolderPurpose, QStringLiteral("*.txt|*.txt"),
                                                   QStringLiteral("txt"), true);
    if (!file.isEmpty()) SavePlanText(plan, FromQt(file));
}

void frmResult::PutOutWorkbook(const PlanOutput& plan) {
    const QString file = UseDialogs().SaveFileName(
        this, kFolderPurpose, QStringLiteral("Excel 工作簿|*.xlsx"), QStringLiteral("xlsx"), true);
    if (file.isEmpty()) return;
    PlanWorkbook(plan).Save(FromQt(file));
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        UseDialogs().Message(this, QStringLiteral("确认您的系统中是否安装了Excel软件或版本不兼容！"),
                             QStringLiteral("提示"), NoticeIcon::Information);
    }
}

}  // namespace kalvane
