#include "warehouse/goods_notes.h"

#include "numeric/number.h"
#include "numeric/text.h"
#include "store/command_scope.h"
#include "store/schema.h"

namespace kalvane {
namespace {

std::string Value(const std::string& text, bool isNumber) {
    return isNumber ? text : "'" + text + "'";
}

/// Inserts a record under the number of its note.
template <typename Field, typename Record>
void Insert(Connection& stock, std::string_view table, std::string columns, std::string values,
            const std::vector<Field>& fields, const Record& record) {
    for (const Field& field : fields) {
        columns += (columns.empty() ? "" : ",") + std::string(field.column);
        values += (values.empty() ? "" : ",") + Value(record.*field.member, field.isNumber);
    }
    stock.Execute("Insert into " + std::string(table) + " (" + columns + ") Values(" + values + ")");
}

Cursor OpenStockRow(Connection& stock, const std::string& code) {
    return stock.OpenCursor("Select * from 库存表 where 规格='" + code + "'");
}

/// Throws NumericError when a quantity that is to change by `change` would not fit; a missing one stays.
void CheckRange(const FieldValue& quantity, double change) {
    if (!quantity.IsNull()) RoundToInt32(quantity.Number() + change);
}

/// Writes a line. Whatever can be refused is refused before the first statement.
void WriteLine(Connection& stock, NoteKind kind, const GoodsNote& note, const NoteLine& line) {
    const NoteLayout& layout = LayoutOf(kind);
    if (const auto refusal = RefusedField(kind, line)) throw StoreError(refusal->text);
    const Cursor row = OpenStockRow(stock, line.code);
    const bool isNew = row.Eof();
    if (isNew && kind == NoteKind::Out) throw StoreError("库存表里没有规格“" + line.code + "”。");
    if (!isNew) {
        const double count = ParseNumber(line.count);
        CheckRange(row.Field("库存量"), kind == NoteKind::In ? count : -count);
        if (kind == NoteKind::In) CheckRange(row.Field("入库量"), count);
    }

    Insert(stock, layout.lineTable, "单据编号", note.number, layout.lineFields, line);
    const std::string where = " where 规格='" + line.code + "'";
    if (kind == NoteKind::Out) {
        stock.Execute("Update 库存表 set 库存量=库存量-" + line.count + where);
    } else if (isNew) {
        stock.Execute("Insert into 库存表 (名称,规格,厂家,单位,种类,入库量,库存量)  Values('" + line.name +
                      "','" + line.code + "','" + note.supplier + "','" + line.unit + "','" + line.kind +
                      "'," + line.count + "," + line.count + ")");
    } else {
        stock.Execute("Update 库存表 set 入库量=入库量+" + line.count + ",库存量=库存量+" + line.count +
                      where);
    }
}

std::string TextRefusal(const NoteLineField& field, const std::string& text, const Column& column) {
    const std::string name(field.column);
    if (text.find('\'') != std::string::npos) return name + "里不能有单引号 ' 。";
    if (CharCount(text) <= static_cast<std::size_t>(column.width)) return "";
    return name + "“" + text + "”太长，最多 " + std::to_string(column.width) + " 个字。";
}

std::string NumberRefusal(const NoteLineField& field, const std::string& text, const Column& column) {
    const std::string name = std::string(field.column) + "“" + text + "”";
    const bool isWhole = column.type == ColumnType::Int32;
    if (text.find_first_not_of(isWhole ? "0123456789" : "0123456789.") != std::string::npos ||
        !IsNumeric(text)) {
        return name + (isWhole ? "不是整数，请只输入数字。" : "不是数值，请只输入数字和一个小数点。");
    }
    try {
        if (isWhole) {
            RoundToInt32(ParseNumber(text));
        } else {
            NarrowToFloat(ParseNumber(text));
        }
        return "";
    } catch (const NumericError&) {
        return name + "太大。";
    }
}

}  // namespace

const NoteField* FirstEmptyField(NoteKind kind, const GoodsNote& note) {
    for (const NoteField& field : LayoutOf(kind).fields) {
        if (field.mustBeFilled && (note.*field.member).empty()) return &field;
    }
    return nullptr;
}

const NoteLineField* FirstEmptyField(NoteKind kind, const NoteLine& line) {
    for (const NoteLineField& field : LayoutOf(kind).lineFields) {
        // Of a goods-out line the count has its own check, and the kind comes with the stock row.
        const bool isChecked =
            kind == NoteKind::In || (field.member != &NoteLine::count && field.member != &NoteLine::kind);
        if (isChecked && (line.*field.member).empty()) return &field;
    }
    return nullptr;
}

std::optional<LineRefusal> RefusedField(NoteKind kind, const NoteLine& line) {
    const NoteLayout& layout = LayoutOf(kind);
    for (const NoteLineField& field : layout.lineFields) {
        const Column& column = *FindColumn(*FindTable(layout.lineTable), field.column);
        const std::string& text = line.*field.member;
        const std::string refusal =
            field.isNumber ? NumberRefusal(field, text, column) : TextRefusal(field, text, column);
        if (!refusal.empty()) return LineRefusal{&field, refusal};
    }
    return std::nullopt;
}

std::string AmountOf(std::span<const NoteLine> lines) {
    double sum = 0;
    for (const NoteLine& line : lines) sum += ParseNumber(line.price) * ParseNumber(line.count);
    return ShortText(NarrowToFloat(sum));
}

void ConfirmNote(Connection& stock, NoteKind kind, GoodsNote note) {
    const NoteLayout& layout = LayoutOf(kind);
    if (kind == NoteKind::In) note.amount = AmountOf(note.lines);
    CommandScope scope(stock);
    Insert(stock, layout.table, "", "", layout.fields, note);
    for (std::size_t i = 0; i < note.lines.size(); ++i) {
        try {
            WriteLine(stock, kind, note, note.lines[i]);
        } catch (const Error& failure) {
            scope.Finish();  // a disk failure has undone the note: nothing of it stands
            throw NoteCut(i, "第 " + std::to_string(i + 1) + " 行（规格“" + note.lines[i].code +
                                 "”）没有写入：" + failure.what());
        }
    }
    scope.Finish();
}

GoodsNote LoadNote(Connection& stock, NoteKind kind, std::string_view number) {
    const NoteLayout& layout = LayoutOf(kind);
    const std::string where = " where 单据编号=" + std::string(number);
    const Cursor head = stock.OpenCursor("Select * from " + std::string(layout.table) + where);
    if (head.Eof()) {
        throw StoreError("“" + std::string(layout.table) + "”里没有单据编号为 " + std::string(number) +
                         " 的记录。");
    }
    GoodsNote note;
    for (const NoteField& field : layout.fields) {
        note.*field.member = head.Field(field.column).TextOrEmpty();
    }
    for (Cursor row = stock.OpenCursor("Select * from " + std::string(layout.lineTable) + where); !row.Eof();
         row.MoveNext()) {
        NoteLine& line = note.lines.emplace_back();
        for (const NoteLineField& field : layout.lineFields) {
            line.*field.member = row.Field(field.column).TextOrEmpty();
        }
    }
    return note;
}

std::vector<StockRow> StockOfKind(Connection& stock, std::string_view kind) {
    std::vector<StockRow> rows;
    for (Cursor row = stock.OpenCursor("Select * from 库存表 where 种类='" + std::string(kind) + "'");
         !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
        rows.push_back({text("名称"), text("规格"), text("单位"), text("库存量"), text("种类")});
    }
    return rows;
}

std::string PickRefusal(std::string_view count, std::string_view onHand) {
    const double wanted = Val(count);
    if (wanted == 0) return "数据不能为0!请重新输入。";
    if (wanted <= Val(onHand)) return "";
    return "数据不能大于" + std::string(onHand) + ",请重新输入!";
}

}  // namespace kalvane
