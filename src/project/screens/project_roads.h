#pragma once

#include <functional>
#include <string>

#include "project/project_list.h"

class QWidget;

namespace kalvane {

/// Where the commands of an opened project lead that belong to subsystems above this one. The main screen
/// lays the roads; each shows its screen over `parent` and returns when that is closed.
struct ProjectRoads {
    /// The component sheets of the project, that of the window with that number first.
    std::function<void(QWidget* parent, const Project& project, const std::string& windowNumber)> sheets;
    std::function<void(QWidget* parent, const Project& project)> optimise;
    std::function<void(QWidget* parent, const Project& project)> totals;  ///< of a project with windows
};

}  // namespace kalvane
