#pragma once

#include <string>
#include <string_view>

#include "catalogue/catalogue.h"

namespace kalvane {

/// A change of all prices of a node by a percentage.
struct PriceChange {
    int count = 0;       ///< materials with a price
    std::string before;  ///< the first one's price, and what it becomes
    std::string after;
};

/// A price changed by a percentage and rounded to the cent, halves away from zero. Throws NumericError for
/// texts that are no numbers, a percentage that leaves nothing (-100 or below), and beyond 1000.
std::string ChangedPrice(std::string_view price, std::string_view percent);

/// What RaisePrices would do.
PriceChange PreviewPrices(Connection& connection, const CatalogueClass& materialClass,
                          std::string_view parent, std::string_view percent);

/// Changes the price of every material of a node by a percentage, as one command; one without a price keeps
/// none. Throws StoreError, and NumericError as ChangedPrice does.
void RaisePrices(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
                 std::string_view percent);

}  // namespace kalvane
