#pragma once

#include <filesystem>

#include "optimise/plan.h"
#include "platform/workbook.h"

namespace kalvane {

/// Writes both tables of the plan one below the other as text; see SaveTableText. Throws FileError.
void SavePlanText(const PlanOutput& plan, const std::filesystem::path& path);

/// Both tables of the plan as a spreadsheet of two sheets, ready to be printed and signed.
Workbook PlanWorkbook(const PlanOutput& plan);

}  // namespace kalvane
