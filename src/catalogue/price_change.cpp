#include "catalogue/price_change.h"

#include <cmath>

#include "numeric/error.h"
#include "numeric/number.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

constexpr double kMostPercent = 1000;
/// Far below a cent and far above what the binary form of a price adds to its decimals.
constexpr double kBinaryError = 1e-7;

}  // namespace

std::string ChangedPrice(std::string_view price, std::string_view percent) {
    const double change = ParseNumber(percent);
    if (change <= -100 || change > kMostPercent) throw NumericError("百分比应大于 -100，不超过 1000。");
    const double cents = ParseNumber(price) * (100 + change);
    return ShortText(std::round(cents + std::copysign(kBinaryError, cents)) / 100);
}

PriceChange PreviewPrices(Connection& connection, const CatalogueClass& materialClass,
                          std::string_view parent, std::string_view percent) {
    PriceChange change;
    for (const MaterialTexts& material : LoadMaterials(connection, materialClass, parent)) {
        const std::string& price = material[materialClass.price];
        if (price.empty()) continue;
        if (++change.count > 1) continue;
        change.before = price;
        change.after = ChangedPrice(price, percent);
    }
    return change;
}

void RaisePrices(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
                 std::string_view percent) {
    InCommand(connection, [&] {
        for (const MaterialTexts& material : LoadMaterials(connection, materialClass, parent)) {
            const std::string& price = material[materialClass.price];
            if (price.empty()) continue;
            connection.Execute(std::string("Update ") + materialClass.table + " set " +
                               materialClass.columns[materialClass.price].name + "=" +
                               ChangedPrice(price, percent) + " where 编号=" + material.back());
        }
    });
}

}  // namespace kalvane
