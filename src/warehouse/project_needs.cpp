#include "warehouse/project_needs.h"

#include <algorithm>
#include <map>

#include "numeric/number.h"

namespace kalvane {

std::vector<NeededLine> MatchNeeds(Connection& stock, const std::vector<MaterialNeed>& needs,
                                   const std::vector<NoteLine>& taken) {
    std::map<std::string, double> gone;
    for (const NoteLine& line : taken) gone[line.code] += Val(line.count);
    std::vector<NeededLine> lines;
    for (const MaterialNeed& need : needs) {
        NeededLine& needed = lines.emplace_back();
        needed.line = {need.name, need.code, need.unit, {}, {}, need.kind};
        needed.needed = need.count;
        needed.basis = need.basis;
        const Cursor row = stock.OpenCursor("Select * from 库存表 where 规格='" + need.code + "'");
        double onHand = 0;
        if (!row.Eof()) {
            needed.line.name = row.Field("名称").TextOrEmpty();
            needed.line.unit = row.Field("单位").TextOrEmpty();
            needed.line.kind = row.Field("种类").TextOrEmpty();
            onHand = Val(row.Field("库存量").TextOrEmpty()) - gone[need.code];
        }
        const double count = Val(need.count);
        const double available = std::max(0.0, std::min(count, onHand));
        gone[need.code] += available;
        needed.onHand = ShortText(onHand);
        needed.line.count = ShortText(available);
        if (available < count) needed.lacking = ShortText(count - available);
    }
    return lines;
}

}  // namespace kalvane
