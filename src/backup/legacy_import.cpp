#include "backup/legacy_import.h"

#include <optional>
#include <string>
#include <vector>

#include "drawing/cpictire.h"
#include "numeric/error.h"
#include "store/command_scope.h"
#include "store/table_writer.h"

namespace kalvane {
namespace {

constexpr std::string_view kTables[] = {"标注",     "窗板材", "窗配件",   "窗型钢",  "窗型材",   "工程",
                                        "工程门窗", "玻璃",   "材料厂家", "门窗",    "门窗厂家", "门窗系列",
                                        "配件",     "型钢",   "型材",     "型材系列"};
constexpr std::string_view kWindowTypes = "门窗";

/// The fields of the current row.
std::vector<FieldValue> RowOf(const Cursor& row) {
    std::vector<FieldValue> values;
    values.reserve(static_cast<std::size_t>(row.FieldCount()));
    for (int i = 0; i < row.FieldCount(); ++i) values.push_back(row.Field(i));
    return values;
}

void CopyAsTexts(Cursor source, TableWriter& destination) {
    for (; !source.Eof(); source.MoveNext()) {
        std::vector<FieldValue> values = RowOf(source);
        for (FieldValue& value : values) {
            if (!value.IsNull()) value = FieldValue(value.Text());
        }
        destination.AddRow(values);
    }
}

void ImportTables(Connection& main, Connection& old) {
    for (const std::string_view table : kTables) {
        const Cursor rows = old.OpenCursor("Select * from " + std::string(table));
        main.Execute("Delete * from " + std::string(table));
        TableWriter writer(main, table);
        CopyAsTexts(rows, writer);
    }
}

/// Stores the drawing of a window type under that number.
void ImportDrawing(Connection& main, const std::string& number, const Cursor& type, Notice& notice) {
    const std::string name = type.Field("名称").TextOrEmpty();
    main.Execute("Insert into 图 (编号,图名) Values(" + number + ",'" + name + "')");
    CPictire picture(notice);
    picture.Open_File(type.Field("图名").TextOrEmpty());
    picture.SaveFileEx(main, number, name);
}

void RebuildDrawings(Connection& main, const CommandScope& scope, Notice& notice) {
    for (const char* table : {"图", "Line", "Rectangle", "arrow", "Dim", "Strings"}) {
        main.Execute(std::string("Delete * from ") + table);
    }
    Cursor types = main.OpenCursor("Select * from " + std::string(kWindowTypes));
    const auto drawingColumn = static_cast<std::size_t>(types.FieldIndex("图号"));
    // Ids need not be unique, so the rows are written again rather than updated by their id.
    main.Execute("Delete * from " + std::string(kWindowTypes));
    TableWriter writer(main, kWindowTypes);
    for (std::int64_t number = 1; !types.Eof(); types.MoveNext(), ++number) {
        std::vector<FieldValue> type = RowOf(types);
        type[drawingColumn] = FieldValue(number);
        writer.AddRow(type);
        try {
            ImportDrawing(main, std::to_string(number), types, notice);
        } catch (const Error&) {
            if (scope.IsUndone()) throw;
            // The type keeps its number, with an empty drawing.
        }
    }
}

}  // namespace

void ImportLegacyDatabase(Connection& main, const std::filesystem::path& file, Notice& notice) {
    std::optional<Connection> old;
    try {
        old.emplace(file, StoreKind::Legacy);
    } catch (const StoreError&) {
        notice.Show("无法打开数据库！", "提示", NoticeIcon::Information);
        return;
    }
    CommandScope scope(main);
    ImportTables(main, *old);
    RebuildDrawings(main, scope, notice);
    scope.Finish();
    notice.Show("数据库已导入完毕。", "报告", NoticeIcon::Information);
}

}  // namespace kalvane
