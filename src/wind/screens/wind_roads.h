#pragma once

#include <functional>
#include <vector>

#include "wind/project_window.h"

class QWidget;

namespace kalvane {

/// Lets the operator choose windows of a project, over `parent`; none when it was cancelled. Projects belong
/// to a subsystem above this one: the main screen hands the road in.
using ChooseWindows = std::function<std::vector<ProjectWindow>(QWidget* parent)>;

}  // namespace kalvane
