#include "output/settlement.h"

#include "numeric/number.h"
#include "store/command_scope.h"

namespace kalvane {

bool CountsAsDoor(std::string_view windowName) {
    return windowName.find("门") != std::string_view::npos;
}

void ClearSettlement(Connection& connection) {
    connection.Execute("Delete * from OutJS");
}

void FillSettlement(Connection& connection, std::span<const WindowEntry> windows,
                    const SettlementPrices& prices) {
    InCommand(connection, [&] {
        int number = 0;
        for (const WindowEntry& window : windows) {
            const double squareMetres =
                Val(window.width) / 1000 * Val(window.height) / 1000 * Val(window.count);
            const float area = NarrowToFloat(Val(ShortText(squareMetres)));
            const double price = CountsAsDoor(window.name) ? prices.door : prices.window;
            const float amount = NarrowToFloat(price * static_cast<double>(area));
            connection.Execute("Insert into OutJS (XH,LX,Width,Height,Count,MJ,DJ,JE,BN) Values('" +
                               window.name + "','" + window.position + "'," + window.width + "," +
                               window.height + "," + window.count + "," + ShortText(area) + "," +
                               ShortText(price) + "," + ShortText(amount) + "," + std::to_string(++number) +
                               ")");
        }
    });
}

float TotalArea(std::span<const WindowEntry> windows) {
    float area = 0;
    for (const WindowEntry& window : windows) {
        const double width = RoundToInt16(Val(window.width));
        const double height = RoundToInt16(Val(window.height));
        const double count = RoundToInt16(Val(window.count));
        area = NarrowToFloat(static_cast<double>(area) + width / 1000 * height / 1000 * count);
    }
    return area;
}

OrderFees WorkOutFees(Connection& connection, std::span<const WindowEntry> windows, const FieldSlots& slots) {
    const auto area = static_cast<double>(TotalArea(windows));
    OrderFees result;
    for (std::size_t i = 0; i < result.fees.size(); ++i) {
        result.fees[i] = CutTo15Digits(area * Val(slots[i]));
        result.total += result.fees[i];
    }
    const Cursor sum = connection.OpenCursor("select sum(金额) from outTj");
    if (!sum.Field(0).IsNull()) result.total += static_cast<double>(NarrowToFloat(sum.Field(0).Number()));
    return result;
}

}  // namespace kalvane
