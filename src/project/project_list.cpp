#include "project/project_list.h"

#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {

std::vector<Project> ListProjects(Connection& connection) {
    std::vector<Project> projects;
    for (Cursor row = connection.OpenCursor("Select * from 工程"); !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
        projects.push_back(
            {text("编号"), text("合同编号"), text("工程名称"), text("工程地点"), text("甲方单位")});
    }
    return projects;
}

std::string AddProject(Connection& connection, const Project& project) {
    std::string number;
    InCommand(connection, [&] {
        number = GetNextId(connection, "工程");
        connection.Execute("Insert into 工程 (编号,合同编号,工程名称,工程地点,甲方单位) Values(" + number +
                           ",'" + project.contractNumber + "','" + project.name + "','" + project.place +
                           "','" + project.client + "')");
    });
    return number;
}

void UpdateProject(Connection& connection, const Project& project) {
    InCommand(connection, [&] {
        connection.Execute("Update 工程 Set 合同编号='" + project.contractNumber + "',工程名称='" +
                           project.name + "',工程地点='" + project.place + "',甲方单位='" + project.client +
                           "' Where 编号=" + project.number);
    });
}

void DeleteProject(Connection& connection, std::string_view number) {
    const std::string id(number);
    InCommand(connection, [&] {
        for (Cursor window = connection.OpenCursor("Select * from 工程门窗 where 工程编号=" + id);
             !window.Eof(); window.MoveNext()) {
            const std::string n = window.Field("编号").Text();
            connection.Execute("Delete * from 标注 where MCNUM=" + n);
            connection.Execute("Delete * from 标注2 where MCBN=" + n);
        }
        connection.Execute("Delete * from 工程门窗 where 工程编号=" + id);
        connection.Execute("Delete * from 工程 where 编号=" + id);
        connection.Execute("Delete * from 工程合同 where HTBN=" + id);
    });
}

}  // namespace kalvane
