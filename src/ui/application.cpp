#include "ui/application.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLocale>
#include <QStyleFactory>

#include "ui/standard_texts.h"
#include "ui/wheel_guard.h"

namespace kalvane {
namespace {

// In points, so that it grows with the screen's scale.
constexpr qreal kSmallestFont = 10;

QFont ScreenFont() {
    QFont font = QApplication::font();
    // The first that is installed serves; the platform's own comes last.
    font.setFamilies({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Source Han Sans SC"),
                      QStringLiteral("Microsoft YaHei"), QStringLiteral("WenQuanYi Micro Hei"),
                      font.family()});
    font.setPointSizeF(std::max(font.pointSizeF(), kSmallestFont));
    return font;
}

}  // namespace

void PrepareApplication(QApplication& application) {
    // Not the display name: the platform would add that to every window's title.
    QApplication::setApplicationName(QStringLiteral("KalvaneV7.0"));
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/ui/kalvane.svg")));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(ScreenFont());
    QCoreApplication::installTranslator(new StandardTexts(&application));
    application.installEventFilter(new WheelGuard(&application));
}

}  // namespace kalvane
