#pragma once

class QWidget;

namespace kalvane {

/// Opens the work screens for the main screen, which makes a fresh one for each use.
class KalvaneKernel {
  public:
    /// The projects, not modal.
    void ShowGCGL();
    /// Backup and restore, modal.
    void ShowTools(QWidget* parent);
};

}  // namespace kalvane
