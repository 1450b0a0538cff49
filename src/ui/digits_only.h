#pragma once

#include <QValidator>

namespace kalvane {

/// Lets only the digits 0 to 9 into a box, and points where it is told to; full-width ones, as an input
/// method types them, count as such. Set on a box with setValidator.
class DigitsOnly final : public QValidator {
    Q_OBJECT

  public:
    enum class Points { Refused, Allowed };

    explicit DigitsOnly(QObject* parent, Points points = Points::Refused)
        : QValidator(parent), points_(points) {}

    State validate(QString& input, int& position) const override;

  private:
    Points points_;
};

}  // namespace kalvane
