#pragma once

#include <filesystem>
#include <string>

#include "optimise/plan.h"

namespace kalvane {

/// Both tables of the plan as text, fields separated by tabs, lines ended by carriage return and line feed.
std::string PlanText(const PlanOutput& plan);

/// Writes PlanText as one step, in UTF-8 with a byte order mark, by which the text editors and spreadsheets
/// of any desktop show the Chinese texts. Throws FileError.
void SavePlanText(const PlanOutput& plan, const std::filesystem::path& path);

}  // namespace kalvane
