#include "warehouse/screens/FrmQuery.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>

#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/file_export.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/report_output.h"
#include "ui/text.h"
#include "ui/text_box.h"
#include "warehouse/note_reports.h"
#include "warehouse/screens/frmMinStock.h"
#include "warehouse/screens/frmStockFlow.h"
#include "warehouse/screens/note_preview.h"
#include "warehouse/stock_by_kind.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(980, 600);
constexpr int kGoodsInTab = 0;
constexpr int kStockTab = 2;
constexpr int kCodeColumn = 1;  // of the stock list

}  // namespace

FrmQuery::FrmQuery(QWidget* parent)
    : EntryScreen(QStringLiteral("FrmQuery"), QStringLiteral("查寻"), parent),
      tabs_(new QTabBar(this)),
      fields_(new QComboBox(this)),
      types_(new QComboBox(this)),
      value_(MakeBox(QStringLiteral("TxtZDZ"), this)),
      query_(MakeButton("CmdQuery", QStringLiteral("&Q 条件查寻"), this)),
      all_(MakeButton("CmdAll", QStringLiteral("&A 全部"), this)),
      print_(MakeButton("CmdKCPrint", QStringLiteral("&P 打印库存表"), this)),
      kindPrint_(MakeButton("CmdFLPrint", QStringLiteral("&K 打印分类库存"), this,
                            QStringLiteral("按种类列出，每类有小计"))),
      flow_(MakeButton("CmdLS", QStringLiteral("&F 流水"), this,
                       QStringLiteral("库存表中所选材料的出入库和结存"))),
      minimum_(MakeButton("CmdZDKC", QStringLiteral("&M 最低库存"), this)),
      workbook_(MakeButton("CmdWorkbook", QStringLiteral("&W 导出到 Excel"), this,
                           QStringLiteral("导出列表中的记录"))),
      text_(MakeButton("CmdText", QStringLiteral("&T 导出到文本"), this, QStringLiteral("导出列表中的记录"))),
      exit_(MakeButton("CmdExit", QStringLiteral("&E 返 回"), this)),
      lvw_(new ReportList(QStringLiteral("LVW"), {}, this)),
      rows_(*lvw_) {
    tabs_->setObjectName(QStringLiteral("TabStrip1"));
    fields_->setObjectName(QStringLiteral("CmbZD"));
    types_->setObjectName(QStringLiteral("CmbTemp"));
    types_->hide();
    lvw_->setToolTip(QStringLiteral("双击这里可查看具体信息"));
    lvw_->SelectSeveral();
    lvw_->OfferInMenu({flow_});
    for (const std::string_view table : QueryTables()) tabs_->addTab(ToQt(table));
    LayOut();
    ShowTab();
    Connect();
}

void FrmQuery::LayOut() {
    auto* body = new QWidget(this);
    auto* left = new QVBoxLayout(body);
    left->setContentsMargins(0, 0, 0, 0);
    left->addWidget(tabs_);
    auto* filter = new QFormLayout;
    filter->addRow(QStringLiteral("查寻字段:"), fields_);
    filter->addRow(QStringLiteral("值等于:"), value_);
    filter->addRow(new QLabel(QStringLiteral("按回车键以确认条件查寻的有效性."), this));
    left->addLayout(filter);
    left->addWidget(lvw_, 1);
    LayOutBesideButtons(this, body,
                        {{query_, all_}, {flow_, minimum_}, {print_, kindPrint_}, {workbook_, text_}}, exit_);
    resize(kFirstSize);
}

void FrmQuery::Connect() {
    OnSignal(tabs_, &QTabBar::currentChanged, this, [this] { ShowTab(); });
    OnSignal(fields_, &QComboBox::activated, this, [this] { ChooseField(); });
    OnSignal(query_, &QPushButton::clicked, this, [this] { RunFilter(); });
    OnSignal(all_, &QPushButton::clicked, this, [this] { Fill(QueryStatement(Table())); });
    OnSignal(lvw_, &ReportList::DoubleClicked, this, [this] { Preview(); });
    OnSignal(print_, &QPushButton::clicked, this, [this] { PrintReport(this, StockReport(App().Stock())); });
    OnSignal(kindPrint_, &QPushButton::clicked, this,
             [this] { PrintReport(this, StockByKindReport(App().Stock(), App().ownConnection.get())); });
    OnSignal(flow_, &QPushButton::clicked, this, [this] { ShowFlow(); });
    OnSignal(minimum_, &QPushButton::clicked, this, [this] { frmMinStock(this).exec(); });
    OnSignal(workbook_, &QPushButton::clicked, this, [this] { Export(true); });
    OnSignal(text_, &QPushButton::clicked, this, [this] { Export(false); });
    OnSignal(exit_, &QPushButton::clicked, this, [this] { Leave(); });
    OnEnter(value_, [this] { query_->click(); });
    OnEnter(lvw_, [this] { Preview(); });
    EnterMovesTo(fields_, value_);
}

std::string_view FrmQuery::Table() const {
    return QueryTables()[static_cast<std::size_t>(tabs_->currentIndex())];
}

void FrmQuery::ShowTab() {
    fields_->clear();
    types_->clear();
    for (const Column& column : FindTable(Table())->columns) {
        fields_->addItem(ToQt(column.name));
        types_->addItem(QString::number(static_cast<int>(FieldTypeOf(column))));
    }
    fields_->setCurrentIndex(-1);
    flow_->setEnabled(tabs_->currentIndex() == kStockTab);
    rows_.Clear();
}

void FrmQuery::ChooseField() {
    value_->clear();
    types_->setCurrentIndex(fields_->currentIndex());
    value_->setFocus();
}

void FrmQuery::RunFilter() {
    const std::string field = FromQt(fields_->currentText());
    const std::string value = FromQt(value_->text());
    const auto type = static_cast<FieldType>(types_->currentText().toInt());
    if (const auto refusal = RefusedFilter(field, value, type)) {
        TellAt(this, ToQt(refusal->text), refusal->isField ? static_cast<QWidget*>(fields_) : value_);
        return;
    }
    Fill(QueryStatement(Table(), field, value, type));
}

void FrmQuery::Fill(const std::string& statement) {
    // Read before the list is touched: a refused statement leaves it as it is.
    Cursor rows = App().Stock().OpenCursor(statement);
    rows_.Show(*FindTable(Table()), std::move(rows));
}

void FrmQuery::Preview() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选取对象,不能预览更多的信息!"));
    if (row < 0 || tabs_->currentIndex() == kStockTab) return;
    PreviewNote(tabs_->currentIndex() == kGoodsInTab ? NoteKind::In : NoteKind::Out,
                FromQt(lvw_->Text(row, 0)), this);
}

void FrmQuery::ShowFlow() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("请先选择库存表中的材料。"));
    if (row >= 0) frmStockFlow(FromQt(lvw_->Text(row, kCodeColumn)), this).exec();
}

void FrmQuery::Export(bool asWorkbook) {
    rows_.Finish();
    std::vector<std::vector<std::string>> rows;
    for (const int row : lvw_->AllRows()) {
        std::vector<std::string>& texts = rows.emplace_back();
        for (const QString& text : lvw_->Row(row)) texts.push_back(FromQt(text));
    }
    const FileTable table = QueryFileTable(Table(), std::move(rows));
    const QString purpose = QStringLiteral("stock");
    if (asWorkbook) {
        ExportWorkbook(
            this, purpose, ToQt(Table()),
            [&](const std::filesystem::path& file) { TableWorkbook({table}).Save(file); },
            QStringLiteral("没有可以打开工作簿的程序。"));
    } else {
        ExportText(this, purpose, ToQt(Table()), [&](const std::filesystem::path& file) {
            SaveTableText({table}, TabPlace::BehindEachCell, file);
        });
    }
}

}  // namespace kalvane
