#pragma once

#include <QStringList>

#include "project/project_list.h"
#include "project/project_windows.h"

namespace kalvane {

/// Headings of a list of projects.
QStringList ProjectColumns();

// A project as a row of such a list, and back.
QStringList ToRow(const Project& project);
Project ToProject(const QStringList& row);

/// Headings of a list of project windows.
QStringList WindowColumns();

// A project window as a row of such a list, and back.
QStringList ToRow(const WindowEntry& window);
WindowEntry ToWindow(const QStringList& row);

}  // namespace kalvane
