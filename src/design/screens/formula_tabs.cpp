#include "design/screens/formula_tabs.h"

#include <QTreeWidgetItem>
#include <algorithm>

#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

QString NameOf(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return QStringLiteral("LvwXC");
        case MaterialClass::Steel:
            return QStringLiteral("LvwXG");
        case MaterialClass::Panel:
            return QStringLiteral("LvwPC");
        case MaterialClass::Fitting:
            break;
    }
    return QStringLiteral("LvwPJ");
}

/// What loses work is red, what only looks wrong is yellow.
QColor ColourOf(FindingKind kind) {
    const bool isGrave = kind == FindingKind::NotSaved || kind == FindingKind::NeverReturns;
    return isGrave ? QColor(255, 190, 190) : QColor(255, 240, 170);
}

FormulaTexts TextsOf(const ReportList& list, int row) {
    FormulaTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = FromQt(list.Text(row, static_cast<int>(i)));
    return texts;
}

}  // namespace

FormulaTabs::FormulaTabs(QWidget* parent) : QTabWidget(parent) {
    for (const MaterialClass materialClass : kListClasses) {
        const FormulaTable& table = FormulaTableOf(materialClass);
        QStringList columns;
        for (const char* column : table.columns) columns << QString::fromUtf8(column);
        auto* list = new ReportList(NameOf(materialClass), columns, this);
        list->KeepOrder();
        lists_[static_cast<std::size_t>(materialClass)] = list;
        addTab(list, QString::fromUtf8(table.caption));
        connect(list, &ReportList::itemSelectionChanged, this, &FormulaTabs::RowSelected);
        connect(list, &ReportList::itemClicked, this, [this, list, materialClass] {
            const int row = list->SelectedRow();
            if (row >= 0) lastClicked_[static_cast<std::size_t>(materialClass)] = TextsOf(*list, row);
        });
        connect(list, &ReportList::itemDoubleClicked, this, &FormulaTabs::RowOpened);
    }
    connect(this, &QTabWidget::currentChanged, this, &FormulaTabs::RowSelected);
}

void FormulaTabs::Show(const FormulaLists& lists, const std::vector<FormulaFinding>& findings) {
    for (const MaterialClass materialClass : kListClasses) {
        ReportList* list = List(materialClass);
        const int selected = list->SelectedRow();
        QList<QStringList> rows;
        for (const FormulaTexts& texts : lists[materialClass]) {
            QStringList row;
            for (const std::string& text : texts) row << ToQt(text);
            rows << row;
        }
        list->Clear();
        list->AddRows(rows);
        if (selected >= 0 && list->RowCount() > 0) list->SelectRow(std::min(selected, list->RowCount() - 1));
    }
    for (const FormulaFinding& finding : findings) Mark(finding);
}

void FormulaTabs::Mark(const FormulaFinding& finding) {
    QTreeWidgetItem* item = List(finding.materialClass)->topLevelItem(static_cast<int>(finding.row));
    const auto column = static_cast<int>(finding.column);
    const QString others = item->toolTip(column);
    item->setToolTip(column,
                     others.isEmpty() ? ToQt(finding.text) : others + QLatin1Char('\n') + ToQt(finding.text));
    if (others.isEmpty()) item->setBackground(column, ColourOf(finding.kind));
}

MaterialClass FormulaTabs::Front() const {
    return kListClasses[static_cast<std::size_t>(currentIndex())];
}

std::optional<std::size_t> FormulaTabs::SelectedRow(MaterialClass materialClass) const {
    const int row = List(materialClass)->SelectedRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

void FormulaTabs::SelectRow(MaterialClass materialClass, std::size_t row) {
    setCurrentWidget(List(materialClass));
    List(materialClass)->SelectRow(static_cast<int>(row));
}

}  // namespace kalvane
