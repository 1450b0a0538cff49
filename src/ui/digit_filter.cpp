#include "ui/digit_filter.h"

namespace kalvane {

QString PlainDigits(const QString& text) {
    QString plain = text;
    for (QChar& c : plain) {
        const char16_t code = c.unicode();
        if (code >= u'０' && code <= u'９') c = QChar(u'0' + (code - u'０'));
        if (code == u'．' || code == u'。') c = QLatin1Char('.');
        if (code == u'－') c = QLatin1Char('-');
        if (code == u'＋') c = QLatin1Char('+');
    }
    return plain;
}

QValidator::State DigitFilter::validate(QString& input, int&) const {
    input = PlainDigits(input);
    return Acceptable;
}

}  // namespace kalvane
