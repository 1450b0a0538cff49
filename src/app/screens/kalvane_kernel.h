#pragma once

namespace kalvane {

/// Opens the work screens for the main screen, which makes a fresh one for each use.
class KalvaneKernel {
  public:
    /// The projects, not modal.
    void ShowGCGL();
};

}  // namespace kalvane
