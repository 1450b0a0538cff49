#pragma once

#include <vector>

#include "page/table_file.h"

class QWidget;

namespace kalvane {

/// Sends tables to a file of the kind that the settings say, the first one's title in its name: a text file,
/// or a workbook of a sheet for each. True unless it was cancelled.
bool SaveTables(QWidget* parent, const std::vector<FileTable>& tables);

}  // namespace kalvane
