#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"

namespace kalvane {

/// A row of 工程: one construction job.
struct Project {
    std::string number;          ///< 编号, a whole number as text
    std::string contractNumber;  ///< 合同编号
    std::string name;            ///< 工程名称
    std::string place;           ///< 工程地点
    std::string client;          ///< 甲方单位
};

// Every routine throws StoreError when the store refuses a statement; a text with a quote in it breaks its
// statement. Each change is one command.

/// All projects, in the order of the store.
std::vector<Project> ListProjects(Connection& connection);

/// Adds a project under the next number and returns that number; `project.number` is ignored. Neither
/// names nor contract numbers need be unique.
std::string AddProject(Connection& connection, const Project& project);

/// Writes the four texts of the project with `project.number`.
void UpdateProject(Connection& connection, const Project& project);

/// Deletes a project with its windows, their labels and its contract.
void DeleteProject(Connection& connection, std::string_view number);

}  // namespace kalvane
