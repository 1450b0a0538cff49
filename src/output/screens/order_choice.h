#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "output/tally_reports.h"
#include "project/project_list.h"
#include "project/project_windows.h"

namespace kalvane {

/// What the commands of frmTJJS work on.
struct OrderChoice {
    Project project;
    std::function<std::vector<WindowEntry>()> windows;  ///< the chosen ones

    /// Of its reports, with the day's date.
    ReportHead Head() const;
};

/// The maker's name in the settings; `fallback` where none was saved.
std::string MakerName(const char* fallback);

/// Now, as the papers show it.
QString TimeText();

}  // namespace kalvane
