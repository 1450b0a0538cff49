#pragma once

#include <string>
#include <vector>

#include "store/connection.h"

namespace kalvane {

/// A project window to choose from: its columns as text, Null as empty.
struct DemandWindow {
    std::string name;        ///< 门窗名称
    std::string type;        ///< 门窗类型
    std::string makeSize;    ///< 制作尺寸
    std::string count;       ///< 樘数
    std::string windowType;  ///< 门窗编号; below zero for a composite window
    std::string id;          ///< 编号
};

/// The windows of a project, in the order of the store.
std::vector<DemandWindow> ListDemandWindows(Connection& connection, const std::string& projectId);

/// Empties 优化结果 and replaces 优化数据 by what the windows need: one row per profile and steel formula
/// row, of each window or composite member. A plain window multiplies the evaluated quantity as it is, a
/// composite one its whole part.
///
/// Throws NumericError (a 樘数 that is no number, an overflow, a Null, named with its window type),
/// FormulaError or StoreError at the first row that fails; the rows before it stay.
void GatherDemand(Connection& connection, const std::vector<DemandWindow>& windows);

}  // namespace kalvane
