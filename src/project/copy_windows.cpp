#include "project/copy_windows.h"

#include "formula/composite.h"
#include "project/member_rows.h"
#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

void CopyLabels(Connection& connection, const std::string& from, const std::string& to) {
    for (Cursor row = connection.OpenCursor("Select * from 标注 where mcnum=" + from); !row.Eof();
         row.MoveNext()) {
        connection.Execute("Insert into 标注 (px,py,schar,mcnum,mc) values(" + NumberOrNull(row.Field("px")) +
                           "," + NumberOrNull(row.Field("py")) + ",'" + row.Field("schar").TextOrEmpty() +
                           "'," + to + ",'" + row.Field("MC").TextOrEmpty() + "')");
    }
}

void CopyWindow(Connection& connection, const WindowEntry& window, const std::string& targetProject) {
    WindowEntry copy = window;
    copy.projectNumber = targetProject;
    copy.number = GetNextId(connection, "工程门窗");
    for (std::string* size : {&copy.width, &copy.height, &copy.count}) {
        if (size->empty()) *size = "Null";
    }
    InsertWindowRow(connection, copy);
    CopyLabels(connection, window.number, copy.number);
    if (IsComposite(window.typeNumber)) CopyMemberRows(connection, window.number, copy.number);
}

}  // namespace

void CopyWindows(Connection& connection, std::span<const WindowEntry> windows,
                 std::string_view targetProject) {
    InCommand(connection, [&] {
        for (std::size_t i = 0; i < windows.size(); ++i) {
            try {
                CopyWindow(connection, windows[i], std::string(targetProject));
            } catch (const StoreError& refusal) {
                throw CopyRefusal(i, "门窗“" + windows[i].name + "”没有复制完，它前面的 " +
                                         std::to_string(i) + " 行已经复制：\n" + refusal.what());
            }
        }
    });
}

Project DuplicateProject(Connection& connection, const Project& project, const std::string& name) {
    Project copy = project;
    copy.name = name;
    InCommand(connection, [&] {
        copy.number = AddProject(connection, copy);
        CopyWindows(connection, ListWindows(connection, project.number), copy.number);
    });
    return copy;
}

}  // namespace kalvane
