#include "output/screens/order_choice.h"

#include <QDateTime>

#include "platform/settings_store.h"
#include "session/app_state.h"
#include "ui/text.h"

namespace kalvane {

ReportHead OrderChoice::Head() const {
    return {project.name, FromQt(QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd")))};
}

std::string MakerName(const char* fallback) {
    return App().settings->Read(kSettingsApplication, kSectionMain, "DW", fallback);
}

QString TimeText() {
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

}  // namespace kalvane
