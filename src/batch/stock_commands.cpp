#include "batch/stock_commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ctime>
#include <iostream>

#include "batch/locked_store.h"
#include "batch/setting.h"
#include "numeric/error.h"
#include "numeric/text.h"
#include "store/helpers.h"
#include "warehouse/clear_stock.h"
#include "warehouse/goods_notes.h"
#include "warehouse/stock_query.h"
#include "warehouse/stock_shortage.h"

namespace kalvane {
namespace {

std::string Today() {
    const std::time_t now = std::time(nullptr);
    char text[16];
    std::strftime(text, sizeof text, "%Y-%m-%d", std::localtime(&now));
    return text;
}

void SetHead(const NoteLayout& layout, const Setting& setting, GoodsNote& note) {
    for (const NoteField& field : layout.fields) {
        // The number is allotted and the amount is that of the lines.
        if (field.isNumber || field.column != setting.name) continue;
        note.*field.member = setting.text;
        return;
    }
    throw Error(std::string(layout.table) + "没有可以填写的“" + setting.name + "”。");
}

NoteLine ParsedLine(const NoteLayout& layout, std::string_view text) {
    const auto tabs = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\t'));
    if (tabs + 1 != layout.lineFields.size()) throw Error(std::string(kIncompleteNote));
    NoteLine line;
    for (const NoteLineField& field : layout.lineFields) line.*field.member = TakeUpTo(text, "\t");
    return line;
}

/// Throws Error when the screens would not take the line.
void RequireLine(Connection& stock, NoteKind kind, const NoteLine& line) {
    if (FirstEmptyField(kind, line) != nullptr) throw Error(std::string(kIncompleteNote));
    if (kind == NoteKind::Out && line.count.empty()) throw Error(PickRefusal("", ""));
    if (const auto refusal = RefusedField(kind, line)) throw Error(refusal->text);
    if (kind == NoteKind::In) {
        const auto kinds = MaterialKinds();
        if (std::find(kinds.begin(), kinds.end(), line.kind) == kinds.end()) {
            throw Error("种类“" + line.kind + "”应是 型材、型钢、板材 或 五金件。");
        }
        return;
    }
    const Cursor row = stock.OpenCursor("Select 库存量 from 库存表 where 规格='" + line.code + "'");
    if (row.Eof()) throw Error("库存表里没有规格“" + line.code + "”。");
    const std::string refusal = PickRefusal(line.count, row.Field(0).TextOrEmpty());
    if (!refusal.empty()) throw Error(refusal);
}

void PrintRow(const std::vector<std::string>& fields) {
    const char* separator = "";
    for (const std::string& field : fields) {
        std::cout << separator << field;
        separator = "\t";
    }
    std::cout << '\n';
}

}  // namespace

StockCommands::StockCommands(CLI::App& application) {
    CLI::App* stock = application.add_subcommand("stock", "goods in, goods out and the stock list");
    stock->require_subcommand(1);

    CLI::App* in = Add(*stock, "in", "confirm a goods-in note; prints its number");
    AddNote(*in);
    in->callback([this] { Confirm(NoteKind::In); });

    CLI::App* out = Add(*stock, "out", "confirm a goods-out note; prints its number");
    AddNote(*out);
    out->callback([this] { Confirm(NoteKind::Out); });

    CLI::App* query = Add(*stock, "query", "rows of a table, all or those whose field has a value");
    query->add_option("--table", table_, "入库单, 出库单, 库存表, 入库单子表 or 出库单子表")
        ->required()
        ->check(CLI::IsMember({"入库单", "出库单", "库存表", "入库单子表", "出库单子表"}));
    CLI::Option* field = query->add_option("--field", field_, "name of a column");
    query->add_option("--value", value_, "what it equals")->needs(field);
    query->callback([this] { Query(); });

    Add(*stock, "clear", "empty the warehouse, after a dated copy")->callback([this] { Clear(); });
}

CLI::App* StockCommands::Add(CLI::App& stock, const char* name, const char* description) {
    CLI::App* command = stock.add_subcommand(name, description);
    command->add_option("--folder", folder_, "folder of the stores")->capture_default_str();
    return command;
}

void StockCommands::AddNote(CLI::App& command) {
    command.add_option("--set", sets_, "COLUMN=VALUE; may be given several times")
        ->allow_extra_args(false)
        ->take_all();
    command.add_option("--line", lines_, "columns parted by tabs; may be given several times")
        ->allow_extra_args(false)
        ->take_all();
}

void StockCommands::Confirm(NoteKind kind) const {
    const NoteLayout& layout = LayoutOf(kind);
    GoodsNote note;
    note.date = Today();
    for (const std::string& word : sets_) SetHead(layout, ParsedSetting(word), note);
    for (const std::string& text : lines_) note.lines.push_back(ParsedLine(layout, text));
    if (FirstEmptyField(kind, note) != nullptr || note.lines.empty()) {
        throw Error(std::string(kIncompleteNote));
    }
    LockedStore store(folder_, StoreKind::Stock);
    Connection& stock = store.Get();
    for (const NoteLine& line : note.lines) RequireLine(stock, kind, line);
    if (kind == NoteKind::Out) {
        const std::vector<Shortage> shortages = FindShortages(stock, note.lines);
        if (!shortages.empty()) std::cerr << "出库后库存量小于零：" << ShortageText(shortages) << '\n';
    }
    note.number = kind == NoteKind::In ? NextEnterNo(stock) : NextPostNo(stock);
    ConfirmNote(stock, kind, note);
    PrintRow({note.number});
}

void StockCommands::Query() const {
    const Table& table = *FindTable(table_);
    std::string statement = QueryStatement(table_);
    if (!field_.empty()) {
        const Column* column = FindColumn(table, field_);
        if (column == nullptr) throw Error("“" + table_ + "”没有字段“" + field_ + "”。");
        const FieldType type = FieldTypeOf(*column);
        if (const auto refusal = RefusedFilter(field_, value_, type)) throw Error(std::string(refusal->text));
        statement = QueryStatement(table_, field_, value_, type);
    }
    LockedStore store(folder_, StoreKind::Stock);
    const std::vector<std::vector<std::string>> rows = TextRows(store.Get().OpenCursor(statement));
    std::vector<std::string> heading;
    for (const Column& column : table.columns) heading.emplace_back(column.name);
    PrintRow(heading);
    for (const auto& row : rows) PrintRow(row);
}

void StockCommands::Clear() const {
    LockedStore store(folder_, StoreKind::Stock);
    const std::filesystem::path copy = ClearStockKeepingCopy(store.Get());
    std::cerr << "操作已完成!\n清空前的仓库保存在：" << copy.string() << '\n';
}

}  // namespace kalvane
