#include "warehouse/screens/query_rows.h"

#include <QHeaderView>
#include <limits>

#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr int kFirstRows = 500;   // more than a screen shows
constexpr int kNextRows = 20000;  // in about a tenth of a second

}  // namespace

QueryRows::QueryRows(ReportList& list) : list_(list) {
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, [this] { AddRows(kNextRows); });
}

void QueryRows::Clear() {
    timer_.stop();
    rows_.reset();
    list_.SetColumns({});
}

void QueryRows::Show(const Table& table, Cursor rows) {
    Clear();
    QStringList columns;
    stockColumn_ = -1;
    for (const Column& column : table.columns) {
        if (column.name == "库存量") stockColumn_ = static_cast<int>(columns.size());
        columns << ToQt(column.name);
    }
    list_.SetColumns(columns);
    list_.header()->setSectionsClickable(false);
    rows_ = std::move(rows);
    timer_.start();
    AddRows(kFirstRows);
}

void QueryRows::Finish() {
    AddRows(std::numeric_limits<int>::max());
}

void QueryRows::AddRows(int most) {
    if (!rows_) return;
    const int first = list_.RowCount();
    QList<QStringList> rows;
    for (; !rows_->Eof() && rows.size() < most; rows_->MoveNext()) {
        QStringList texts;
        texts.reserve(rows_->FieldCount());
        for (int i = 0; i < rows_->FieldCount(); ++i) texts << ToQt(rows_->Field(i).TextOrEmpty());
        rows << texts;
    }
    list_.AddRows(rows);
    if (stockColumn_ >= 0) {
        for (int row = first; row < list_.RowCount(); ++row) MarkNegative(row);
    }
    if (!rows_->Eof()) return;
    timer_.stop();
    rows_.reset();
    list_.header()->setSectionsClickable(true);
}

void QueryRows::MarkNegative(int row) {
    if (!list_.Text(row, stockColumn_).startsWith(QLatin1Char('-'))) return;
    QTreeWidgetItem* item = list_.topLevelItem(row);
    for (int column = 0; column < list_.columnCount(); ++column) item->setForeground(column, Qt::red);
    item->setToolTip(stockColumn_, QStringLiteral("库存量小于零：出库多于入库"));
}

}  // namespace kalvane
