#pragma once

#include <string>
#include <vector>

#include "store/connection.h"

namespace kalvane {

/// A 规格 with what is in stock of it and its minimum.
struct StockLevel {
    std::string code;
    std::string name;  ///< of the stock row; empty when there is none
    std::string unit;
    std::string kind;
    std::string onHand;   ///< "0" without a stock row
    std::string minimum;  ///< empty when none is set
    std::string lacking;  ///< up to the minimum; empty when it is reached
};

// The minimum of a 规格 is kept in the own store (store/schema.h), since the tables of the warehouse stay
// what they are. It outlives the clearing of the warehouse.

/// The rows of the stock list in their order, and behind them every other 规格 with a minimum. Throws
/// StoreError.
std::vector<StockLevel> StockLevels(Connection& stock, Connection& own);

/// Those below their minimum. Throws StoreError.
std::vector<StockLevel> BelowMinimum(Connection& stock, Connection& own);

/// Sets the minimum of a 规格, a whole number; an empty text or 0 takes it away. Throws Error for anything
/// else, and StoreError.
void SetMinimum(Connection& own, const std::string& code, const std::string& minimum);

}  // namespace kalvane
