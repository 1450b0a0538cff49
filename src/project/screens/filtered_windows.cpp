#include "project/screens/filtered_windows.h"

#include <QAbstractItemModel>
#include <QVBoxLayout>

#include "ui/report_list.h"
#include "ui/text_box.h"

namespace kalvane {

FilteredWindows::FilteredWindows(ReportList* list, QWidget* parent)
    : QWidget(parent), list_(list), filter_(MakeBox(QStringLiteral("TxtFilter"), this)) {
    filter_->setPlaceholderText(QStringLiteral("筛选：名称、部位、尺寸……"));
    filter_->setClearButtonEnabled(true);
    list_->setDragDropMode(QAbstractItemView::InternalMove);
    list_->setToolTip(QStringLiteral("拖动可以改变次序，只在本界面和门窗表里有效"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(filter_);
    rows->addWidget(list_, 1);
    connect(filter_, &QLineEdit::textChanged, this, [this] { Filter(); });
    connect(list_->model(), &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { SetUpRows(first, last); });
}

std::vector<int> FilteredWindows::ShownRows() const {
    std::vector<int> rows;
    for (const int row : list_->AllRows()) {
        if (!list_->topLevelItem(row)->isHidden()) rows.push_back(row);
    }
    return rows;
}

void FilteredWindows::SetUpRows(int first, int last) {
    for (int row = first; row <= last; ++row) {
        QTreeWidgetItem* item = list_->topLevelItem(row);
        item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    }
    Filter();
}

void FilteredWindows::Filter() {
    const QString text = filter_->text().trimmed();
    for (const int row : list_->AllRows()) {
        const bool holds = list_->Row(row).join(QLatin1Char('\n')).contains(text, Qt::CaseInsensitive);
        list_->topLevelItem(row)->setHidden(!holds);
    }
}

}  // namespace kalvane
