#pragma once

#include <array>
#include <span>
#include <string_view>

#include "project/project_windows.h"
#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

/// Prices of a square metre, the money of both.
struct SettlementPrices {
    double door = 0;
    double window = 0;
};

/// True where the name of a project window holds 门: it is paid as a door, whatever its type.
bool CountsAsDoor(std::string_view windowName);

/// Empties OutJS. Throws StoreError.
void ClearSettlement(Connection& connection);

/// Adds a row to OutJS for each window, numbered in their order: its area times the price of a door or a
/// window. One command. Throws StoreError and NumericError; the rows before it stay.
void FillSettlement(Connection& connection, std::span<const WindowEntry> windows,
                    const SettlementPrices& prices);

/// What an order costs beside its material.
struct OrderFees {
    std::array<double, 4> fees{};  ///< labour, tax, transport, other
    double total = 0;              ///< of the fees and the material in OutTJ
};

/// Area of windows in square metres, summed in 32 bits, with each size and count rounded to a whole number.
/// Throws NumericError when one is beyond 16 bits.
float TotalArea(std::span<const WindowEntry> windows);

/// The fees of a square metre in slots 0 to 3 times the area, and their total with the amounts in OutTJ.
/// Throws as TotalArea does, and StoreError.
OrderFees WorkOutFees(Connection& connection, std::span<const WindowEntry> windows, const FieldSlots& slots);

}  // namespace kalvane
