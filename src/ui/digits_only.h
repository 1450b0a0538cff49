#pragma once

#include <QValidator>

namespace kalvane {

/// Lets only the digits 0 to 9 into a box; full-width ones, as an input method types them, count as such.
/// Set on a box with setValidator.
class DigitsOnly final : public QValidator {
    Q_OBJECT

  public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override;
};

}  // namespace kalvane
