#pragma once

#include "optimise/plan.h"
#include "platform/workbook.h"

namespace kalvane {

/// Both tables of the plan as a spreadsheet of two sheets, ready to be printed and signed.
Workbook PlanWorkbook(const PlanOutput& plan);

}  // namespace kalvane
