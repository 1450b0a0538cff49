#include "ui/number_filter.h"

#include <QLineEdit>
#include <algorithm>

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

void NumberFilter::Set(QLineEdit* box, NumberKeys keys) {
    box->setValidator(new NumberFilter(keys, box));
}

QValidator::State NumberFilter::validate(QString& input, int&) const {
    input = PlainDigits(input);
    if (keys_ == NumberKeys::Any) return Acceptable;
    const bool passes = std::all_of(input.cbegin(), input.cend(), [this](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
               (c == QLatin1Char('.') && keys_ == NumberKeys::Decimal);
    });
    return passes ? Acceptable : Invalid;
}

}  // namespace kalvane
