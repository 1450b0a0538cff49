#include "ui/report_list.h"

#include <QHeaderView>

#include "numeric/assertion.h"

namespace kalvane {
namespace {
constexpr int kTagRole = Qt::UserRole;
constexpr int kColumnPadding = 16;
}  // namespace

ReportList::ReportList(const QString& name, const QStringList& columns, QWidget* parent)
    : QTreeWidget(parent) {
    setObjectName(name);
    setColumnCount(static_cast<int>(columns.size()));
    setHeaderLabels(columns);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    connect(header(), &QHeaderView::sectionResized, this, [this](int column) {
        // The last column stretches by itself.
        if (!fitting_ && isVisible() && column + 1 < columnCount()) userSized_ = true;
    });
}

int ReportList::AddRow(const QStringList& texts, const QString& tag) {
    auto* item = new QTreeWidgetItem(this, texts);
    item->setData(0, kTagRole, tag);
    FitColumnsSoon();
    return RowCount() - 1;
}

QStringList ReportList::Row(int row) const {
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column) texts << Text(row, column);
    return texts;
}

QString ReportList::Text(int row, int column) const {
    return Item(row)->text(column);
}

QString ReportList::Tag(int row) const {
    return Item(row)->data(0, kTagRole).toString();
}

void ReportList::SetRow(int row, const QStringList& texts) {
    for (int column = 0; column < texts.size(); ++column) SetText(row, column, texts[column]);
}

void ReportList::SetText(int row, int column, const QString& text) {
    Item(row)->setText(column, text);
    FitColumnsSoon();
}

void ReportList::RemoveRow(int row) {
    const bool wasSelected = SelectedRow() == row;
    delete Item(row);
    if (wasSelected && RowCount() > 0) SelectRow(std::min(row, RowCount() - 1));
}

void ReportList::Clear() {
    clear();
}

int ReportList::SelectedRow() const {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : indexOfTopLevelItem(selected.front());
}

void ReportList::SelectRow(int row) {
    QTreeWidgetItem* item = Item(row);
    setCurrentItem(item);
    item->setSelected(true);
    scrollToItem(item);
}

void ReportList::showEvent(QShowEvent* event) {
    QTreeWidget::showEvent(event);
    FitColumns();
}

void ReportList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    FitColumnsSoon();
}

QTreeWidgetItem* ReportList::Item(int row) const {
    QTreeWidgetItem* item = topLevelItem(row);
    KALVANE_ASSERT(item != nullptr);
    return item;
}

void ReportList::FitColumnsSoon() {
    if (fitPending_ || userSized_ || !isVisible()) return;
    fitPending_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            fitPending_ = false;
            FitColumns();
        },
        Qt::QueuedConnection);
}

void ReportList::FitColumns() {
    if (userSized_ || !isVisible()) return;
    fitting_ = true;
    header()->setStretchLastSection(false);  // a stretched column has no width of its own
    for (int column = 0; column < columnCount(); ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, columnWidth(column) + kColumnPadding);
    }
    header()->setStretchLastSection(header()->length() < viewport()->width());
    fitting_ = false;
}

}  // namespace kalvane
