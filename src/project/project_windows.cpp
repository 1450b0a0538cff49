#include "project/project_windows.h"

#include "numeric/number.h"
#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

void InsertLabels(Connection& connection, const std::string& number, std::span<const LabelRow> labels) {
    for (const LabelRow& label : labels) {
        connection.Execute("Insert into 标注 (MCNUM,MC,Px,Py,schar) Values(" + number + ",'" + label.name +
                           "'," + label.x + "," + label.y + ",'" + label.value + "')");
    }
}

}  // namespace

std::vector<WindowEntry> ListWindows(Connection& connection, std::string_view projectNumber) {
    std::vector<WindowEntry> windows;
    for (Cursor row = connection.OpenCursor(
             "Select * from 工程门窗 where 工程编号=" + std::string(projectNumber) + " order by 编号");
         !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
        windows.push_back({text("门窗名称"), text("门窗类型"), text("洞口宽"), text("洞口高"), text("樘数"),
                           text("说明"), text("工程编号"), text("门窗编号"), text("编号")});
    }
    return windows;
}

std::vector<LabelRow> LoadLabels(Connection& connection, std::string_view windowNumber) {
    std::vector<LabelRow> labels;
    for (Cursor row = connection.OpenCursor("Select * from 标注 where MCNUM=" + std::string(windowNumber));
         !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
        labels.push_back({text("MC"), text("schar"), text("px"), text("py")});
    }
    return labels;
}

void InsertWindowRow(Connection& connection, const WindowEntry& window) {
    connection.Execute(
        "Insert into 工程门窗 (工程编号,门窗编号,编号,门窗名称,门窗类型,洞口宽,洞口高,樘数,说明) Values(" +
        window.projectNumber + "," + window.typeNumber + "," + window.number + ",'" + window.name + "','" +
        window.position + "'," + window.width + "," + window.height + "," + window.count + ",'" +
        window.note + "')");
}

std::string AddWindow(Connection& connection, const WindowEntry& window, std::span<const LabelRow> labels) {
    std::string number;
    InCommand(connection, [&] {
        WindowEntry added = window;
        added.number = number = GetNextId(connection, "工程门窗");
        InsertWindowRow(connection, added);
        InsertLabels(connection, number, labels);
    });
    return number;
}

void UpdateWindow(Connection& connection, const WindowEntry& window, std::span<const LabelRow> labels) {
    InCommand(connection, [&] {
        connection.Execute("Update 工程门窗 set 门窗名称='" + window.name + "',门窗类型='" + window.position +
                           "',洞口宽=" + window.width + ",洞口高=" + window.height + ",樘数=" + window.count +
                           ",说明='" + window.note + "' Where 编号=" + window.number);
        connection.Execute("Delete * from 标注 where MCNUM=" + window.number);
        InsertLabels(connection, window.number, labels);
    });
}

void DeleteWindow(Connection& connection, std::string_view windowNumber) {
    const std::string number(windowNumber);
    InCommand(connection, [&] {
        connection.Execute("Delete * from 工程门窗 where 编号=" + number);
        connection.Execute("Delete * from 标注 where MCNUM=" + number);
        connection.Execute("Delete * from 标注2 where MCBN=" + number);
    });
}

}  // namespace kalvane
