#pragma once

#include <QObject>

namespace kalvane {

/// Filter for the whole application: the wheel over a combo or a spin box that does not have the focus
/// scrolls what is around it, instead of changing a value that the operator only passed by.
class WheelGuard final : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kalvane
