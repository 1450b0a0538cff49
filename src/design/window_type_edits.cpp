#include "design/window_type_edits.h"

#include <functional>

#include "design/formula_lists.h"
#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

std::string Join(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text += part;
    return text;
}

/// Adds the row as `statement` puts it for a new number, and returns that number.
std::string AddRow(Connection& connection, const char* table,
                   const std::function<std::string(const std::string& number)>& statement) {
    std::string number;
    InCommand(connection, [&] {
        number = GetNextId(connection, table);
        connection.Execute(statement(number));
    });
    return number;
}

/// A number that is Null stays so in a copy.
std::string NumberOrNull(const std::string& number) {
    return number.empty() ? "Null" : number;
}

/// Runs `work` on the number of each row that a select finds.
void ForEach(Connection& connection, const std::string& select,
             const std::function<void(const std::string& number)>& work) {
    for (Cursor row = connection.OpenCursor(select); !row.Eof(); row.MoveNext()) {
        work(row.Field("编号").Text());
    }
}

}  // namespace

std::string AddWindowMaker(Connection& connection, std::string_view name) {
    return AddRow(connection, "门窗厂家", [&](const std::string& number) {
        return Join({"Insert into 门窗厂家 (编号,名称) values(", number, ",'", name, "')"});
    });
}

std::string AddWindowSeries(Connection& connection, std::string_view maker, std::string_view name) {
    return AddRow(connection, "门窗系列", [&](const std::string& number) {
        return Join(
            {"Insert into 门窗系列 (厂家编号,编号,名称) values(", maker, ",", number, ",'", name, "')"});
    });
}

std::string AddWindowType(Connection& connection, std::string_view series, std::string_view name,
                          std::string_view drawing) {
    return AddRow(connection, "门窗", [&](const std::string& number) {
        return Join({"Insert into 门窗 (系列编号,编号,名称,图号) values(", series, ",", number, ",'", name,
                     "',", drawing, ")"});
    });
}

void RenameWindowMaker(Connection& connection, std::string_view maker, std::string_view name) {
    connection.Execute(Join({"Update 门窗厂家 set 名称='", name, "' Where 编号=", maker}));
}

void RenameWindowSeries(Connection& connection, std::string_view series, std::string_view name) {
    connection.Execute(Join({"Update 门窗系列 set 名称='", name, "' Where 编号=", series}));
}

void UpdateWindowType(Connection& connection, std::string_view type, std::string_view name,
                      std::string_view drawing) {
    connection.Execute(Join({"Update 门窗 set 名称='", name, "',图号=", drawing, " Where 编号=", type}));
}

void DeleteWindowMaker(Connection& connection, std::string_view maker) {
    InCommand(connection, [&] {
        ForEach(connection, Join({"Select * from 门窗系列 where 厂家编号=", maker}),
                [&](const std::string& series) { DeleteWindowSeries(connection, series); });
        connection.Execute(Join({"Delete * from 门窗厂家 where 编号=", maker}));
    });
}

void DeleteWindowSeries(Connection& connection, std::string_view series) {
    InCommand(connection, [&] {
        ForEach(connection, Join({"Select * from 门窗 where 系列编号=", series}),
                [&](const std::string& type) { DeleteWindowType(connection, type); });
        connection.Execute(Join({"Delete * from 门窗系列 where 编号=", series}));
    });
}

void DeleteWindowType(Connection& connection, std::string_view type) {
    InCommand(connection, [&] {
        for (const MaterialClass materialClass : kListClasses) {
            connection.Execute(
                Join({"Delete * from ", FormulaTableOf(materialClass).name, " where 窗号=", type}));
        }
        connection.Execute(Join({"Delete * from 门窗 where 编号=", type}));
    });
}

std::string CopyWindowType(Connection& connection, std::string_view type, std::string_view series) {
    std::string number;
    InCommand(connection, [&] {
        const Cursor source = connection.OpenCursor(Join({"Select * from 门窗 where 编号=", type}));
        const FormulaLists lists = LoadFormulaLists(connection, type);
        number = AddWindowType(connection, series, source.Field("名称").TextOrEmpty(),
                               NumberOrNull(source.Field("图号").TextOrEmpty()));
        for (const MaterialClass materialClass : kListClasses) {
            const FormulaTable& table = FormulaTableOf(materialClass);
            for (FormulaTexts row : lists[materialClass]) {
                for (std::size_t i = 0; i < row.size(); ++i) {
                    if (table.longest[i] == 0) row[i] = NumberOrNull(row[i]);
                }
                AddFormulaRow(connection, materialClass, number, row);
            }
        }
    });
    return number;
}

void MoveWindowType(Connection& connection, std::string_view type, std::string_view series) {
    connection.Execute(Join({"update 门窗 set 系列编号=", series, " where 编号=", type}));
}

}  // namespace kalvane
