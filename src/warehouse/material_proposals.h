#pragma once

#include <string>
#include <vector>

#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

/// What can be proposed while a goods-in line is typed: the materials of the stock list and those of the
/// catalogue that are not in stock, each 规格 once, without price and count. A panel has no 规格 in the
/// catalogue: its name stands for it. `catalogue` may be null. Throws
/// StoreError.
std::vector<NoteLine> ProposedMaterials(Connection& stock, Connection* catalogue);

/// The price of the last goods-in line of a 规格; empty when there is none. Throws StoreError.
std::string LastPrice(Connection& stock, const std::string& code);

}  // namespace kalvane
