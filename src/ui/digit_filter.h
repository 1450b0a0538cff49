#pragma once

#include <QValidator>

namespace kalvane {

/// `text` with full-width digits, points and signs, as an input method types them, as plain ones. The
/// Chinese full stop counts as a point: it lies on the point's key.
QString PlainDigits(const QString& text);

/// Makes what an input method types into a number box count as digits; refuses nothing. Set on a box with
/// setValidator.
class DigitFilter final : public QValidator {
    Q_OBJECT

  public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override;
};

}  // namespace kalvane
