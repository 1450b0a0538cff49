#include "warehouse/minimum_stock.h"

#include <map>

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

std::int32_t ParsedMinimum(const std::string& text) {
    const std::string refusal = "最低库存“" + text + "”不是整数，请只输入数字，最大 2147483647。";
    if (text.find_first_not_of("0123456789") != std::string::npos) throw Error(refusal);
    try {
        return RoundToInt32(ParseNumber(text));
    } catch (const NumericError&) {
        throw Error(refusal);
    }
}

std::map<std::string, std::string> AllMinimums(Connection& own) {
    std::map<std::string, std::string> minimums;
    for (Cursor row = own.OpenCursor("Select 规格,最低量 from 最低库存"); !row.Eof(); row.MoveNext()) {
        minimums[row.Field(0).TextOrEmpty()] = row.Field(1).TextOrEmpty();
    }
    return minimums;
}

}  // namespace

std::vector<StockLevel> StockLevels(Connection& stock, Connection& own) {
    std::map<std::string, std::string> minimums = AllMinimums(own);
    std::vector<StockLevel> levels;
    for (Cursor row = stock.OpenCursor("Select * from 库存表"); !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
        StockLevel level{text("规格"), text("名称"), text("单位"), text("种类"), text("库存量"), {}, {}};
        const auto minimum = minimums.extract(level.code);
        if (!minimum.empty()) level.minimum = minimum.mapped();
        levels.push_back(std::move(level));
    }
    for (const auto& [code, minimum] : minimums) levels.push_back({code, {}, {}, {}, "0", minimum, {}});
    for (StockLevel& level : levels) {
        const double lacking = Val(level.minimum) - Val(level.onHand);
        if (!level.minimum.empty() && lacking > 0) level.lacking = ShortText(lacking);
    }
    return levels;
}

std::vector<StockLevel> BelowMinimum(Connection& stock, Connection& own) {
    std::vector<StockLevel> levels = StockLevels(stock, own);
    std::erase_if(levels, [](const StockLevel& level) { return level.lacking.empty(); });
    return levels;
}

void SetMinimum(Connection& own, const std::string& code, const std::string& minimum) {
    const std::string plain(Trim(minimum));
    const std::int32_t count = plain.empty() ? 0 : ParsedMinimum(plain);
    InCommand(own, [&] {
        own.Execute("Delete * from 最低库存 where 规格='" + code + "'");
        if (count == 0) return;
        own.Execute("Insert into 最低库存 (规格,最低量) Values('" + code + "'," + std::to_string(count) +
                    ")");
    });
}

}  // namespace kalvane
