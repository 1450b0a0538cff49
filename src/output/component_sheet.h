#pragma once

#include <string>
#include <vector>

#include "drawing/page_templates.h"
#include "formula/labels.h"
#include "output/sheet_walk.h"
#include "project/project_windows.h"
#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

/// Rows of a sheet's table. What is written behind the last is lost.
inline constexpr int kMostSheetRows = 600;

/// A sheet as it is worked out, with the table as it is shown: rows 1 to page.rowCount.
struct WorkedOutSheet {
    ComponentSheet page;
    LabelSet labels;  ///< of the window, with their places; those of members are not among them
    std::vector<std::string> failures;  ///< why cells are empty, in the order of the table
};

/// What every sheet of a job carries besides its window.
struct SheetOrigin {
    std::string projectNumber;  ///< 工程.编号
    std::string maker;          ///< the workshop's name
    std::string date;           ///< as it is to be printed
};

/// The component sheet of one window, worked out from its labels and the formula rows of its type: the paper
/// of the shop floor. `place` is that of the window in its project, from 1. The row of the project is read to
/// `slots`. A cell that cannot be worked out is empty, and the sheet stands all the same.
WorkedOutSheet WorkOutSheet(Connection& connection, FieldSlots& slots, const SheetOrigin& origin,
                            const WindowEntry& window, int place);

/// The five cells of a row. What fails is reported and left empty.
///
/// Profiles and steels: length; pieces rounded down, times the multiplier. Fittings: an empty 数量 counts 0,
/// any other is rounded to a whole number (ties to even) and multiplied, and one beyond 16 bits stays as it
/// is; the unit plays no part. Panels: length, width, stored pieces times the multiplier.
std::array<std::string, SheetTable::kColumns> SheetCells(const SheetLine& line, const SheetFailure& failed);

/// The sheet as the printing takes it: it leaves out row 47 and reads one behind the last, so rows from 47 on
/// stand one place later and row 47 is empty.
ComponentSheet ForPrinting(ComponentSheet sheet);

/// The number of a window's sheet: its place in three digits, "007".
std::string SheetNumber(int place);

/// " 2026年 1月 5日": each number with the blank of a sign that is not there.
std::string SheetDate(int year, int month, int day);

}  // namespace kalvane
