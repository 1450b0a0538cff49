#pragma once

#include <span>
#include <string>
#include <vector>

#include "page/report.h"
#include "page/table_file.h"
#include "store/connection.h"

namespace kalvane {

/// A row of OutJS with its amount to the cent, which a large one has not the digits for.
struct SettledRow {
    std::string number;  ///< BN
    std::string window;
    std::string amount;  ///< JE as the settlement has it
    double exact = 0;    ///< whole millimetres times the price, in 64 bits
};

/// The rows of OutJS in their order. Throws StoreError.
std::vector<SettledRow> CheckSettlement(Connection& connection);

/// True when an amount differs from the exact one in cents.
bool LosesCents(std::span<const SettledRow> rows);

/// Adds the total to the cent to the end of a settlement report, if the rows lose cents.
void AddExactTotal(Report& report, std::span<const SettledRow> rows);

/// A sheet with the exact amounts beside those of the settlement.
FileTable SettlementCheckSheet(std::span<const SettledRow> rows);

}  // namespace kalvane
