#include "wind/screens/site_offer.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QStyle>

#include "ui/text.h"
#include "wind/wind_settings.h"

namespace kalvane {
namespace {
constexpr int kPressureRole = Qt::UserRole;
}  // namespace

void OfferSites(const SettingsStore& settings, QLineEdit* city, QLineEdit* pressure) {
    auto* model = new QStandardItemModel(city);
    for (const Site& site : LoadSites(settings)) {
        auto* item = new QStandardItem(ToQt(site.city + "，" + site.pressure + " kN/m²"));
        item->setData(ToQt(site.city), Qt::EditRole);
        item->setData(ToQt(site.pressure), kPressureRole);
        model->appendRow(item);
    }
    auto* completer = new QCompleter(model, city);
    completer->setFilterMode(Qt::MatchContains);
    city->setCompleter(completer);
    QObject::connect(
        completer, qOverload<const QModelIndex&>(&QCompleter::activated), pressure,
        [pressure](const QModelIndex& row) { pressure->setText(row.data(kPressureRole).toString()); });

    QAction* arrow =
        city->addAction(city->style()->standardIcon(QStyle::SP_ArrowDown), QLineEdit::TrailingPosition);
    arrow->setToolTip(QStringLiteral("以前校核过的城市"));
    arrow->setEnabled(model->rowCount() > 0);
    QObject::connect(arrow, &QAction::triggered, completer, [completer] {
        completer->setCompletionPrefix({});
        completer->complete();
    });
}

}  // namespace kalvane
