#pragma once

#include <string>

namespace kalvane {

/// What the tally keeps between its commands: the sums of the last summary, and the texts that the report of
/// materials showed last. A class that was not tallied leaves its sum and its text as they were.
struct TallyState {
    double ProfileKilograms = 0;
    double SteelKilograms = 0;
    double PanelSquareMetres = 0;

    std::string label11 = "门 窗 材 料 统 计 表";  ///< title
    std::string label10;                           ///< tons of profiles
    std::string label12;                           ///< tons of steels
    std::string label14;                           ///< square metres of panels
};

}  // namespace kalvane
