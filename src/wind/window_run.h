#pragma once

#include <string>
#include <vector>

#include "wind/project_window.h"
#include "wind/window_check.h"

namespace kalvane {

/// The reports of one command: one window, or several of a project.
struct CheckRun {
    std::vector<WindowCheck> checks;
    std::vector<std::string> skipped;  ///< windows without a report, and why
};

/// Checks windows of a project one after the other at the site that stands in the boxes.
CheckRun RunSlidingChecks(const FormTexts& site, const std::vector<ProjectWindow>& windows);
CheckRun RunFullChecks(const FullTexts& site, const std::vector<ProjectWindow>& windows);

}  // namespace kalvane
