#include "warehouse/minimum_stock.h"

#include <algorithm>
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

std::vector<std::string> MinimumsOf(Connection& own, const std::vector<std::string>& codes) {
    const std::map<std::string, std::string> all = AllMinimums(own);
    std::vector<std::string> minimums;
    for (const std::string& code : codes) {
        const auto found = all.find(code);
        minimums.push_back(found == all.end() ? std::string() : found->second);
    }
    return minimums;
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

std::vector<LowStock> BelowMinimum(Connection& stock, Connection& own) {
    std::map<std::string, LowStock> rows;
    for (Cursor row = stock.OpenCursor("Select * from 库存表"); !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
        rows[text("规格")] = {text("规格"), text("名称"), text("单位"), text("种类"), text("库存量"), "", ""};
    }
    std::vector<LowStock> low;
    for (const auto& [code, minimum] : AllMinimums(own)) {
        const auto found = rows.find(code);
        LowStock row = found == rows.end() ? LowStock{code, "", "", "", "0", "", ""} : found->second;
        const double lacking = Val(minimum) - Val(row.onHand);
        if (lacking <= 0) continue;
        row.minimum = minimum;
        row.lacking = ShortText(lacking);
        low.push_back(std::move(row));
    }
    return low;
}

}  // namespace kalvane
