#pragma once

#include <filesystem>

#include "optimise/plan.h"

namespace kalvane {

/// Saves both tables of the plan as a spreadsheet of two sheets, ready to be signed. Throws FileError and
/// leaves an older file as it was.
void SavePlanWorkbook(const PlanOutput& plan, const std::filesystem::path& path);

}  // namespace kalvane
