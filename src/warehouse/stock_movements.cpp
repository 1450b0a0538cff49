#include "warehouse/stock_movements.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <tuple>

#include "numeric/number.h"

namespace kalvane {
namespace {

struct Dated {
    double day = 0;  ///< serial of the note's date; 0 when there is none
    double number = 0;
    double change = 0;
    Movement movement;
};

struct Head {
    double day = 0;
    std::string date;
    std::string purpose;
};

Head HeadOf(Connection& stock, const NoteLayout& layout, const std::string& dateColumn,
            const std::string& number) {
    const Cursor note = stock.OpenCursor("Select " + dateColumn + ",用途 from " + std::string(layout.table) +
                                         " where 单据编号=" + number);
    if (note.Eof()) return {};
    const FieldValue& date = note.Field(0);
    return {date.IsNull() ? 0 : date.Number(), date.TextOrEmpty(), note.Field(1).TextOrEmpty()};
}

void Collect(Connection& stock, NoteKind kind, const std::string& code, std::vector<Dated>& all) {
    const NoteLayout& layout = LayoutOf(kind);
    const std::string dateColumn(layout.fields.back().column);
    std::map<std::string, Head> heads;  // a note may have several lines of one 规格
    for (Cursor line = stock.OpenCursor("Select 单据编号,数量 from " + std::string(layout.lineTable) +
                                        " where 规格='" + code + "'");
         !line.Eof(); line.MoveNext()) {
        const FieldValue& number = line.Field(0);
        const FieldValue& count = line.Field(1);
        if (count.IsNull()) continue;
        Dated& dated = all.emplace_back();
        dated.change = kind == NoteKind::In ? count.Number() : -count.Number();
        dated.movement.note = kind;
        dated.movement.count = count.Text();
        if (number.IsNull()) continue;
        dated.number = number.Number();
        dated.movement.number = number.Text();
        auto head = heads.find(number.Text());
        if (head == heads.end()) {
            head = heads.emplace(number.Text(), HeadOf(stock, layout, dateColumn, number.Text())).first;
        }
        dated.day = head->second.day;
        dated.movement.date = head->second.date;
        dated.movement.purpose = head->second.purpose;
    }
}

}  // namespace

StockCard MovementsOf(Connection& stock, const std::string& code) {
    std::vector<Dated> all;
    Collect(stock, NoteKind::In, code, all);
    Collect(stock, NoteKind::Out, code, all);
    std::stable_sort(all.begin(), all.end(), [](const Dated& a, const Dated& b) {
        return std::tie(a.day, a.movement.note, a.number) < std::tie(b.day, b.movement.note, b.number);
    });

    double moved = 0;
    for (const Dated& dated : all) moved += dated.change;
    const Cursor row = stock.OpenCursor("Select 库存量 from 库存表 where 规格='" + code + "'");
    double balance = row.Eof() || row.Field(0).IsNull() ? 0 : row.Field(0).Number() - moved;

    StockCard card;
    card.opening = ShortText(balance);
    for (Dated& dated : all) {
        balance += dated.change;
        dated.movement.balance = ShortText(balance);
        card.movements.push_back(std::move(dated.movement));
    }
    return card;
}

}  // namespace kalvane
