#pragma once

#include "project/screens/project_roads.h"
#include "warehouse/project_needs.h"

class QWidget;

namespace kalvane {

/// Opens the work screens for the main screen, which makes a fresh one for each use.
class KalvaneKernel {
  public:
    /// Where the commands of an opened project lead.
    static ProjectRoads Roads();
    /// What a goods-out note asks of the projects.
    static ProjectNeeds Needs();

    /// The catalogue of materials, not modal.
    void ShowDatabase();
    /// The window types, not modal.
    void ShowDesign();
    /// The projects, not modal.
    void ShowGCGL();
    /// Backup and restore, modal.
    void ShowTools(QWidget* parent);
};

}  // namespace kalvane
