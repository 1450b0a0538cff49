#include "warehouse/stock_shortage.h"

#include <algorithm>

#include "numeric/number.h"

namespace kalvane {

std::vector<Shortage> FindShortages(Connection& stock, std::span<const NoteLine> lines) {
    std::vector<std::pair<std::string, double>> wanted;
    for (const NoteLine& line : lines) {
        auto found = std::find_if(wanted.begin(), wanted.end(),
                                  [&](const auto& entry) { return entry.first == line.code; });
        if (found == wanted.end()) found = wanted.insert(found, {line.code, 0});
        found->second += ParseNumber(line.count);
    }
    std::vector<Shortage> shortages;
    for (const auto& [code, count] : wanted) {
        const Cursor row = stock.OpenCursor("Select 库存量 from 库存表 where 规格='" + code + "'");
        if (row.Eof() || row.Field(0).IsNull() || count <= row.Field(0).Number()) continue;
        shortages.push_back({code, ShortText(count), row.Field(0).Text()});
    }
    return shortages;
}

std::string ShortageText(std::span<const Shortage> shortages) {
    std::string text;
    for (const Shortage& shortage : shortages) {
        if (!text.empty()) text += "\n";
        text += "规格“" + shortage.code + "”：出库 " + shortage.wanted + "，库存 " + shortage.onHand;
    }
    return text;
}

}  // namespace kalvane
