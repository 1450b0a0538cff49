#pragma once

#include <QWidget>

namespace kalvane {

/// Shows a part of a screen for the time of a piece of work, also when that ends with a failure.
class Shown {
  public:
    explicit Shown(QWidget* part) : part_(part) { part_->show(); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    ~Shown() { part_->hide(); }

  private:
    QWidget* part_;
};

}  // namespace kalvane
