#include "catalogue/screens/material_list.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "session/app_state.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr int kHiddenColumns = 2;

QStringList ToRow(const MaterialTexts& texts) {
    QStringList row;
    for (const std::string& text : texts) row << ToQt(text);
    return row;
}

}  // namespace

MaterialList::MaterialList(QWidget* screen)
    : QWidget(screen), filter_(new QLineEdit(this)), list_(new ReportList(QStringLiteral("Lvw"), {}, this)) {
    filter_->setObjectName(QStringLiteral("TxtFilter"));
    filter_->setPlaceholderText(QStringLiteral("筛选：只显示含有这些文字的材料"));
    filter_->setClearButtonEnabled(true);
    auto* body = new QVBoxLayout(this);
    body->setContentsMargins(0, 0, 0, 0);
    body->addWidget(filter_);
    body->addWidget(list_, 1);
    OnSignal(filter_, &QLineEdit::textChanged, screen, [this] { Filter(); });
}

void MaterialList::ShowNode(const CatalogueClass& materialClass, const std::string& number) {
    class_ = &materialClass;
    node_ = number;
    QStringList headings;
    for (const MaterialColumn& column : materialClass.columns) headings << ToQt(column.heading);
    headings << ToQt(materialClass.parentColumn) << QStringLiteral("编号");
    list_->SetColumns(headings, kHiddenColumns);
    Reload();
}

void MaterialList::Clear() {
    class_ = nullptr;
    node_.clear();
    list_->SetColumns({});
}

void MaterialList::Reload() {
    list_->Clear();
    QList<QStringList> rows;
    for (const MaterialTexts& texts : LoadMaterials(App().Main(), *class_, node_)) rows << ToRow(texts);
    list_->AddRows(rows);
    Filter();
}

MaterialTexts MaterialList::Material(int row) const {
    MaterialTexts texts;
    for (const QString& text : list_->Row(row)) texts.push_back(FromQt(text));
    return texts;
}

void MaterialList::ShowMaterial(int row, const std::string& number) {
    const QStringList texts = ToRow(LoadMaterial(App().Main(), *class_, number));
    if (row < 0) {
        row = list_->AddRow(texts);
    } else {
        list_->SetRow(row, texts);
    }
    list_->SelectRow(row);
}

std::vector<MaterialTexts> MaterialList::Visible() const {
    std::vector<MaterialTexts> materials;
    for (int row = 0; row < list_->RowCount(); ++row) {
        if (!list_->topLevelItem(row)->isHidden()) materials.push_back(Material(row));
    }
    return materials;
}

void MaterialList::Filter() {
    const QString wanted = filter_->text().trimmed();
    const int visible = list_->columnCount() - kHiddenColumns;
    for (int row = 0; row < list_->RowCount(); ++row) {
        QTreeWidgetItem* item = list_->topLevelItem(row);
        bool isWanted = wanted.isEmpty();
        for (int column = 0; column < visible && !isWanted; ++column) {
            isWanted = item->text(column).contains(wanted, Qt::CaseInsensitive);
        }
        if (item->isHidden() == isWanted) item->setHidden(!isWanted);
        // What is out of sight is not edited or deleted.
        if (!isWanted && item->isSelected()) item->setSelected(false);
    }
}

}  // namespace kalvane
