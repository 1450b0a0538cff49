#include "design/screens/test_value_table.h"

#include <QHeaderView>
#include <QMap>

#include "ui/number_filter.h"
#include "ui/screen_memory.h"
#include "ui/text.h"

namespace kalvane {
namespace {

const QString kMemory = QStringLiteral("FrmMCGS.testValues");
const QChar kBetweenLabels = QLatin1Char('\t');
const QChar kBeforeValue = QLatin1Char('=');
constexpr int kName = 0;
constexpr int kValue = 1;

QMap<QString, QString> TypedValues() {
    QMap<QString, QString> values;
    for (const QString& each : Remembered(kMemory, {}).split(kBetweenLabels, Qt::SkipEmptyParts)) {
        const qsizetype end = each.lastIndexOf(kBeforeValue);
        if (end > 0) values[each.left(end)] = each.mid(end + 1);
    }
    return values;
}

}  // namespace

TestValueTable::TestValueTable(QWidget* parent) : QTableWidget(0, 2, parent) {
    setObjectName(QStringLiteral("LvwTest"));
    setHorizontalHeaderLabels({QStringLiteral("标注"), QStringLiteral("试算值")});
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->hide();
    setToolTip(QStringLiteral("公式按这些尺寸（毫米）试算，不会保存到窗型中"));
    setTabKeyNavigation(false);
    connect(this, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) {
        const QString plain = PlainDigits(item->text().trimmed());
        if (plain != item->text()) return item->setText(plain);  // comes back here
        Keep();
        Q_EMIT Changed();
    });
}

void TestValueTable::Show(const std::vector<TestLabel>& labels) {
    const QSignalBlocker quiet(this);
    const QMap<QString, QString> typed = TypedValues();
    setRowCount(static_cast<int>(labels.size()));
    for (int row = 0; row < rowCount(); ++row) {
        const TestLabel& label = labels[static_cast<std::size_t>(row)];
        auto* name = new QTableWidgetItem(ToQt(label.name));
        name->setFlags(Qt::ItemIsEnabled);
        setItem(row, kName, name);
        setItem(row, kValue,
                new QTableWidgetItem(typed.value(ToQt(label.name).toUpper(), ToQt(label.value))));
    }
}

TestValues TestValueTable::Values() const {
    std::vector<TestLabel> labels;
    for (int row = 0; row < rowCount(); ++row) {
        labels.push_back({FromQt(item(row, kName)->text()), FromQt(item(row, kValue)->text())});
    }
    return TestValues(labels);
}

void TestValueTable::Keep() const {
    QMap<QString, QString> values = TypedValues();
    for (int row = 0; row < rowCount(); ++row)
        values[item(row, kName)->text().toUpper()] = item(row, kValue)->text();
    QStringList texts;
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (!value.value().isEmpty()) texts << value.key() + kBeforeValue + value.value();
    }
    Remember(kMemory, texts.join(kBetweenLabels));
}

}  // namespace kalvane
