#pragma once

class QWidget;

namespace kalvane {

/// The optimisation module as the main screen knows it.
class PYH02 {
  public:
    /// Shows the module's screen over `parent` and returns when it is closed.
    void YH02Show(QWidget* parent) const;
};

}  // namespace kalvane
