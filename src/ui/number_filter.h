#pragma once

#include <QValidator>

class QLineEdit;

namespace kalvane {

/// `text` with full-width digits, points and signs, as an input method types them, as plain ones. The
/// Chinese full stop counts as a point: it lies on the point's key.
QString PlainDigits(const QString& text);

/// What a number box lets in.
enum class NumberKeys {
    Any,     ///< every character; the check comes with the confirmation
    Digits,  ///< 0 to 9
    Decimal  ///< digits and points, in any number
};

/// Filters what is typed into a number box; what an input method types counts as digits.
class NumberFilter final : public QValidator {
    Q_OBJECT

  public:
    NumberFilter(NumberKeys keys, QObject* parent) : QValidator(parent), keys_(keys) {}

    /// Sets the filter of a box.
    static void Set(QLineEdit* box, NumberKeys keys);

    State validate(QString& input, int& position) const override;

  private:
    NumberKeys keys_;
};

}  // namespace kalvane
