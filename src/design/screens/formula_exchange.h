#pragma once

#include <QTreeWidgetItem>

class QWidget;

namespace kalvane {

// The exchange of formulas with spreadsheets, for the screen of the window types. The screen's title says
// what is going on until it is over.

/// Writes all window types to a workbook.
void ExportFormulas(QWidget* screen);

/// Reads window types from a workbook into a series, after showing what that will do; any other node, or
/// none, is refused. False when nothing was imported.
bool ImportFormulasInto(const QTreeWidgetItem* node, QWidget* screen);

}  // namespace kalvane
