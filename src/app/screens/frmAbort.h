#pragma once

#include "ui/screen.h"

namespace kalvane {

/// What the product is; closes on a click anywhere.
class frmAbort : public Screen {
    Q_OBJECT

  public:
    explicit frmAbort(QWidget* parent);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace kalvane
