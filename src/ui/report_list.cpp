#include "ui/report_list.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <algorithm>

#include "numeric/assertion.h"
#include "numeric/number.h"
#include "ui/dialogs.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr int kTagRole = Qt::UserRole;
constexpr int kPlaceRole = Qt::UserRole + 1;
constexpr int kColumnPadding = 16;
constexpr int kFittedRows = 1000;  // so many the engine measures; rows added behind them change nothing

/// What a cell sorts by: numbers before texts.
struct SortKey {
    bool isText = false;
    double number = 0;
    QString text;

    explicit SortKey(const QString& cell) : text(cell) {
        const std::string plain = FromQt(cell);
        isText = !IsNumeric(plain);
        if (!isText) number = Val(plain);
    }
    bool operator<(const SortKey& other) const {
        if (isText != other.isText) return !isText;
        return isText ? text < other.text : number < other.number;
    }
};

/// A caption without the mark of its access key.
QString PlainCaption(const QString& caption) {
    const qsizetype mark = caption.indexOf(QLatin1Char('&'));
    return mark < 0 ? caption : (caption.left(mark) + caption.mid(mark + 2)).trimmed();
}

}  // namespace

ReportList::ReportList(const QString& name, const QStringList& columns, QWidget* parent)
    : QTreeWidget(parent) {
    setObjectName(name);
    SetColumns(columns);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header()->setSectionsClickable(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    connect(header(), &QHeaderView::sectionClicked, this, &ReportList::SortBy);
    connect(header(), &QHeaderView::sectionResized, this, [this](int column) {
        // The last column stretches by itself.
        if (!fitting_ && isVisible() && column + 1 < columnCount()) userSized_ = true;
    });
}

void ReportList::SetColumns(const QStringList& columns, int hidden) {
    Clear();
    const auto count = static_cast<int>(columns.size());
    setColumnCount(count);
    setHeaderLabels(columns);
    for (int column = 0; column < count; ++column) setColumnHidden(column, column >= count - hidden);
    userSized_ = false;
    FitColumnsSoon();
}

void ReportList::KeepOrder() {
    header()->setSectionsClickable(false);
}

void ReportList::SelectSeveral() {
    setSelectionMode(QAbstractItemView::ExtendedSelection);
}

void ReportList::OfferInMenu(std::initializer_list<QPushButton*> buttons) {
    menuButtons_ = buttons;
}

QTreeWidgetItem* ReportList::MakeItem(const QStringList& texts, const QString& tag) {
    auto* item = new QTreeWidgetItem(texts);
    if (!tag.isEmpty()) item->setData(0, kTagRole, tag);
    item->setData(0, kPlaceRole, nextPlace_++);
    return item;
}

int ReportList::AddRow(const QStringList& texts, const QString& tag) {
    addTopLevelItem(MakeItem(texts, tag));
    FitColumnsSoon();
    return RowCount() - 1;
}

void ReportList::AddRows(const QList<QStringList>& rows) {
    QList<QTreeWidgetItem*> items;
    items.reserve(rows.size());
    for (const QStringList& row : rows) items << MakeItem(row, {});
    const int before = RowCount();
    addTopLevelItems(items);
    if (before < kFittedRows) FitColumnsSoon();
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
    const bool wasSelected = Item(row)->isSelected();
    delete Item(row);
    if (wasSelected && RowCount() > 0) SelectRow(std::min(row, RowCount() - 1));
}

void ReportList::Clear() {
    clear();
    sortColumn_ = -1;
    header()->setSortIndicatorShown(false);
}

void ReportList::MoveRows(const std::vector<int>& rows, ReportList& to) {
    if (rows.empty()) return;
    QList<QTreeWidgetItem*> moved;
    if (static_cast<int>(rows.size()) == RowCount()) {
        moved = invisibleRootItem()->takeChildren();
    } else {
        for (const int row : rows) moved << Item(row);
        // From the end, so that the places of those before stay.
        for (auto row = rows.rbegin(); row != rows.rend(); ++row) takeTopLevelItem(*row);
        SelectRow(std::min(rows.front(), RowCount() - 1));
    }
    for (QTreeWidgetItem* item : moved) item->setData(0, kPlaceRole, to.nextPlace_++);
    to.addTopLevelItems(moved);
    to.FitColumnsSoon();
}

std::vector<int> ReportList::AllRows() const {
    std::vector<int> rows(static_cast<std::size_t>(RowCount()));
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<int>(i);
    return rows;
}

int ReportList::SelectedRow() const {
    if (currentItem() != nullptr && currentItem()->isSelected()) return indexOfTopLevelItem(currentItem());
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : indexOfTopLevelItem(selected.front());
}

std::vector<int> ReportList::SelectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

int ReportList::SelectedOrTell(const QString& complaint) {
    const int row = SelectedRow();
    if (row < 0) Tell(window(), complaint);
    return row;
}

void ReportList::SelectRow(int row) {
    QTreeWidgetItem* item = Item(row);
    setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollToItem(item);
}

void ReportList::SortBy(int column) {
    if (!header()->sectionsClickable()) return;
    if (sortColumn_ != column) {
        sortColumn_ = column;
        sortOrder_ = Qt::AscendingOrder;
    } else if (sortOrder_ == Qt::AscendingOrder) {
        sortOrder_ = Qt::DescendingOrder;
    } else {
        sortColumn_ = -1;
    }
    QTreeWidgetItem* current = SelectedRow() < 0 ? nullptr : Item(SelectedRow());
    std::vector<std::pair<SortKey, QTreeWidgetItem*>> rows;
    for (QTreeWidgetItem* item : invisibleRootItem()->takeChildren()) {
        rows.emplace_back(
            SortKey(sortColumn_ < 0 ? item->data(0, kPlaceRole).toString() : item->text(sortColumn_)), item);
    }
    const bool descends = sortColumn_ >= 0 && sortOrder_ == Qt::DescendingOrder;
    std::stable_sort(rows.begin(), rows.end(), [descends](const auto& a, const auto& b) {
        return descends ? b.first < a.first : a.first < b.first;
    });
    QList<QTreeWidgetItem*> items;
    for (const auto& [key, item] : rows) items << item;
    addTopLevelItems(items);
    header()->setSortIndicatorShown(sortColumn_ >= 0);
    if (sortColumn_ >= 0) header()->setSortIndicator(sortColumn_, sortOrder_);
    if (current != nullptr) SelectRow(indexOfTopLevelItem(current));
}

void ReportList::CopySelection() const {
    QStringList lines;
    for (const int row : SelectedRows()) {
        QStringList cells;
        for (int column = 0; column < columnCount(); ++column) {
            if (!isColumnHidden(column)) cells << Text(row, column);
        }
        lines << cells.join(QLatin1Char('\t'));
    }
    if (!lines.isEmpty()) QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void ReportList::showEvent(QShowEvent* event) {
    QTreeWidget::showEvent(event);
    FitColumns();
    // An operator at the keyboard begins with the first row.
    if (!opened_ && RowCount() > 0 && selectedItems().isEmpty()) SelectRow(0);
    opened_ = true;
}

void ReportList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    FitColumnsSoon();
}

void ReportList::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
    } else {
        QTreeWidget::keyPressEvent(event);
    }
}

void ReportList::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) Q_EMIT DoubleClicked();
}

void ReportList::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    for (QPushButton* button : menuButtons_) {
        QAction* action = menu.addAction(PlainCaption(button->text()), button, &QPushButton::click);
        action->setEnabled(button->isEnabled());
    }
    if (!menuButtons_.empty()) menu.addSeparator();
    QAction* copy = menu.addAction(QStringLiteral("复制\tCtrl+C"), this, [this] { CopySelection(); });
    copy->setEnabled(SelectedRow() >= 0);
    if (selectionMode() == QAbstractItemView::ExtendedSelection) {
        menu.addAction(QStringLiteral("全选\tCtrl+A"), this, [this] { selectAll(); });
    }
    menu.exec(event->globalPos());
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
        if (isColumnHidden(column)) continue;
        resizeColumnToContents(column);
        setColumnWidth(column, columnWidth(column) + kColumnPadding);
    }
    header()->setStretchLastSection(header()->length() < viewport()->width());
    fitting_ = false;
}

}  // namespace kalvane
