#include "wind/screens/cover_form.h"

#include <QDate>

#include "ui/entry_form.h"
#include "ui/text.h"
#include "wind/wind_settings.h"

namespace kalvane {

void EditCover(SettingsStore& settings, QWidget* parent) {
    const auto box = [](const char* name, const char* caption, std::size_t slot) {
        EntryBox entry{QLatin1String(name), QString::fromUtf8(caption), slot};
        entry.mayBeEmpty = true;
        return entry;
    };
    FieldSlots slots;
    EntryForm form(
        QStringLiteral("frmFM01"), QStringLiteral("封面设置"),
        {box("Text1", "工程名称：", 0), box("Text2", "校    核：", 1), box("Text3", "审    核：", 2),
         box("Text4", "校核单位：", 3), box("Text5", "校核日期：", 4)},
        slots, parent);
    const CoverTexts cover = LoadCover(settings);
    form.Fill({ToQt(cover.project), ToQt(cover.checker), ToQt(cover.reviewer), ToQt(cover.unit), Today()});
    form.Run([&] { SaveCover(settings, {slots[0], slots[1], slots[2], slots[3], {}}); });
}

QString Today() {
    const QDate today = QDate::currentDate();
    return ToQt(CoverDate(today.year(), today.month(), today.day()));
}

}  // namespace kalvane
