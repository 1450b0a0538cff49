#pragma once

#include <string>
#include <vector>

#include "store/connection.h"

namespace kalvane {

/// A 规格 of which less is in stock than its minimum.
struct LowStock {
    std::string code;
    std::string name;  ///< of the stock row; empty when there is none
    std::string unit;
    std::string kind;
    std::string onHand;
    std::string minimum;
    std::string lacking;  ///< up to the minimum
};

// The minimum of a 规格 is kept in the own store (store/schema.h), since the tables of the warehouse stay
// what they are. It outlives the clearing of the warehouse.

/// Of each row of the stock list its minimum, in their order; empty where none is set. Throws StoreError.
std::vector<std::string> MinimumsOf(Connection& own, const std::vector<std::string>& codes);

/// Sets the minimum of a 规格, a whole number; an empty text or 0 takes it away. Throws Error for anything
/// else, and StoreError.
void SetMinimum(Connection& own, const std::string& code, const std::string& minimum);

/// All 规格 below their minimum, by 规格. One without a stock row counts as none on hand. Throws StoreError.
std::vector<LowStock> BelowMinimum(Connection& stock, Connection& own);

}  // namespace kalvane
