#pragma once

#include <string>
#include <vector>

namespace kalvane {

/// A window of a project, as the wind checks take it over. Sizes in mm, 0 where the project does not tell.
struct ProjectWindow {
    struct Label {
        std::string name;
        double value = 0;
    };
    /// A row of its panels.
    struct Pane {
        std::string name;
        double width = 0;
        double height = 0;
        double count = 0;  ///< in one window
    };

    std::string project;
    std::string mark;
    double width = 0;  ///< opening
    double height = 0;
    std::vector<Label> labels;
    std::vector<Pane> panes;
    double sashWidth = 0;  ///< of the main sash, as its profile is cut
    double sashHeight = 0;
};

}  // namespace kalvane
