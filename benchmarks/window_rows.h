#pragma once

#include <string>

#include "store/connection.h"

namespace kalvane::bench {

/// Adds windows to the project 1, of the window types 1 to `types` in turn, with five labels each.
inline void AddWindows(Connection& connection, int windows, int types) {
    for (int window = 1; window <= windows; ++window) {
        const std::string id = std::to_string(window);
        connection.Execute(
            "Insert into 工程门窗 (工程编号,门窗编号,编号,门窗名称,门窗类型,洞口宽,洞口高,樘数,说明)"
            " values(1," +
            std::to_string(window % types + 1) + "," + id + ",'C" + id + "','客厅',1500,1800,3,'')");
        for (const char* label : {"B", "H", "B1", "H1", "H2"}) {
            connection.Execute("Insert into 标注 (px,py,schar,Mcnum,MC) values(0,0,'" +
                               std::to_string(600 + window % 1000) + "'," + id + ",'" + label + "')");
        }
    }
}

}  // namespace kalvane::bench
