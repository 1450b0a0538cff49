#pragma once

#include <functional>

#include "project/project_list.h"

class QWidget;

namespace kalvane {

/// Where the commands of an opened project lead that belong to subsystems above this one. The main screen
/// lays the roads; each shows its screen over `parent` and returns when that is closed.
struct ProjectRoads {
    std::function<void(QWidget* parent, const Project& project)> optimise;
};

}  // namespace kalvane
