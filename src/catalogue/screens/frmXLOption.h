#pragma once

#include "ui/screen.h"

class QRadioButton;

namespace kalvane {

/// Asks whether a maker or a series is to be added.
class frmXLOption : public Screen {
    Q_OBJECT

  public:
    explicit frmXLOption(QWidget* parent);

    /// After it was confirmed.
    bool IsSeries() const;

  private:
    QRadioButton* series_;
};

}  // namespace kalvane
