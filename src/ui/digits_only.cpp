#include "ui/digits_only.h"

#include <algorithm>

#include "ui/digit_filter.h"

namespace kalvane {

QValidator::State DigitsOnly::validate(QString& input, int&) const {
    input = PlainDigits(input);
    const bool allDigits = std::all_of(input.cbegin(), input.cend(), [this](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
               (c == QLatin1Char('.') && points_ == Points::Allowed);
    });
    return allDigits ? Acceptable : Invalid;
}

}  // namespace kalvane
