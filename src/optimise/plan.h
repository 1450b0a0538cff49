#pragma once

#include <array>
#include <string>
#include <vector>

#include "store/connection.h"

namespace kalvane {

/// One row of 优化结果, numbers as text in general form. The practical optimiser writes one row per bar and
/// the ratio as a fraction of 1; the linear one a row per pattern and the ratio in percent.
struct PlanRow {
    std::string material;  ///< 材料名称: the 规格 of the bars
    std::string pattern;   ///< 切割规格, such as 2000*2+1500
    std::string count;     ///< 数量, bars cut so
    std::string ratio;     ///< 优化比率
    std::string rest;      ///< 剩余料长, mm per bar
};

/// Adds a row. Throws StoreError, for one when the pattern has more than 100 characters.
void InsertPlanRow(Connection& connection, const PlanRow& row);

/// The rows as they were written.
std::vector<PlanRow> LoadPlan(Connection& connection);

/// The rows as they were written, but like bars summed: by material and in a fixed order.
std::vector<PlanRow> LoadSummedPlan(Connection& connection);

/// Columns 材料名称, 切割规格, 数量, 优化比率, 剩余料长.
using CutRow = std::array<std::string, 5>;
/// Columns 材料名称, 数量, 优化比率.
using TotalRow = std::array<std::string, 3>;

/// 材料切割表: the rows of LoadSummedPlan as a table. The material is named on its first row only.
std::vector<CutRow> CutTable(const std::vector<PlanRow>& plan);

/// 材料统计表: bars per material and their mean ratio weighted by the bars, unrounded.
std::vector<TotalRow> LoadTotalTable(Connection& connection);

/// The plan as it is exported, to a text file or a spreadsheet.
struct PlanOutput {
    std::vector<CutRow> cuts;
    std::vector<TotalRow> totals;
    std::string projectName;
    std::string today;  ///< date of the output, as it is to appear
};

/// Both tables of the store, with the given heading and date.
PlanOutput LoadPlanOutput(Connection& connection, std::string projectName, std::string today);

}  // namespace kalvane
