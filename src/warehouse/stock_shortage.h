#pragma once

#include <span>
#include <string>
#include <vector>

#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

/// A 规格 of which the lines of a note together take more than is in stock.
struct Shortage {
    std::string code;
    std::string wanted;
    std::string onHand;
};

/// In the order in which the lines first name them. Throws NumericError when a count is no number.
std::vector<Shortage> FindShortages(Connection& stock, std::span<const NoteLine> lines);

/// One line for each, for the operator.
std::string ShortageText(std::span<const Shortage> shortages);

}  // namespace kalvane
