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
#include "warehouse/goods_notes.h"
#include "warehouse/note_reports.h"
#include "warehouse/screens/FrmEnter.h"
#include "warehouse/screens/FrmPost.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(980, 600);
constexpr int kGoodsInTab = 0;
constexpr int kStockTab = 2;

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
      workbook_(MakeButton("CmdWorkbook", QStringLiteral("&W 导出到 Excel"), this,
                           QStringLiteral("导出列表中的记录"))),
      text_(MakeButton("CmdText", QStringLiteral("&T 导出到文本"), this, QStringLiteral("导出列表中的记录"))),
      exit_(MakeButton("CmdExit", QStringLiteral("&E 返 回"), this)),
      lvw_(new ReportList(QStringLiteral("LVW"), {}, this)) {
    tabs_->setObjectName(QStringLiteral("TabStrip1"));
    fields_->setObjectName(QStringLiteral("CmbZD"));
    types_->setObjectName(QStringLiteral("CmbTemp"));
    types_->hide();
    lvw_->setToolTip(QStringLiteral("双击这里可查看具体信息"));
    lvw_->SelectSeveral();
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
    LayOutBesideButtons(this, body, {{query_, all_}, {print_}, {workbook_, text_}}, exit_);
    resize(kFirstSize);
}

void FrmQuery::Connect() {
    OnSignal(tabs_, &QTabBar::currentChanged, this, [this] { ShowTab(); });
    OnSignal(fields_, &QComboBox::activated, this, [this] { ChooseField(); });
    OnSignal(query_, &QPushButton::clicked, this, [this] { RunFilter(); });
    OnSignal(all_, &QPushButton::clicked, this, [this] { Fill(QueryStatement(Table())); });
    OnSignal(lvw_, &ReportList::DoubleClicked, this, [this] { Preview(); });
    OnSignal(print_, &QPushButton::clicked, this, [this] { PrintReport(this, StockReport(App().Stock())); });
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
    lvw_->SetColumns({});
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
    QList<QStringList> rows;
    for (const std::vector<std::string>& row : TextRows(App().Stock().OpenCursor(statement))) {
        QStringList texts;
        for (const std::string& text : row) texts << ToQt(text);
        rows << texts;
    }
    QStringList columns;
    for (const Column& column : FindTable(Table())->columns) columns << ToQt(column.name);
    lvw_->SetColumns(columns);
    lvw_->AddRows(rows);
    if (tabs_->currentIndex() == kStockTab) MarkNegativeStock();
}

void FrmQuery::MarkNegativeStock() {
    const int column = lvw_->columnCount() - 1;
    for (int row = 0; row < lvw_->RowCount(); ++row) {
        if (!lvw_->Text(row, column).startsWith(QLatin1Char('-'))) continue;
        QTreeWidgetItem* item = lvw_->topLevelItem(row);
        for (int i = 0; i <= column; ++i) item->setForeground(i, Qt::red);
        item->setToolTip(column, QStringLiteral("库存量小于零：出库多于入库"));
    }
}

void FrmQuery::Preview() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选取对象,不能预览更多的信息!"));
    if (row < 0 || tabs_->currentIndex() == kStockTab) return;
    const std::string number = FromQt(lvw_->Text(row, 0));
    if (tabs_->currentIndex() == kGoodsInTab) {
        FrmEnter note(number, this);
        note.Preview(LoadNote(App().Stock(), NoteKind::In, number));
        note.exec();
    } else {
        FrmPost note(number, this);
        note.Preview(LoadNote(App().Stock(), NoteKind::Out, number));
        note.exec();
    }
}

void FrmQuery::Export(bool asWorkbook) {
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
