#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "output/tally_reports.h"
#include "project/project_list.h"
#include "project/project_windows.h"

class QWidget;

namespace kalvane {

/// Opens the formula designer of a window type (门窗.编号) over `parent` and returns when it is closed.
using ShowDesigner = std::function<void(QWidget* parent, const std::string& typeId)>;

/// What the commands of frmTJJS work on.
struct OrderChoice {
    Project project;
    std::function<std::vector<WindowEntry>()> windows;  ///< the chosen ones
    ShowDesigner showDesigner;

    /// Of its reports, with the day's date.
    ReportHead Head() const;
};

/// The maker's name in the settings; `fallback` where none was saved.
std::string MakerName(const char* fallback);

/// Now, as the papers show it.
QString TimeText();

}  // namespace kalvane
