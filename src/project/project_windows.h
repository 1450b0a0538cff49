#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/labels.h"
#include "store/connection.h"

namespace kalvane {

/// A project window as the screens show it and hand it on: the columns of 工程门窗 as text, Null as empty,
/// in the order of the window list.
struct WindowEntry {
    std::string name;           ///< 门窗名称
    std::string position;       ///< 门窗类型: where in the building the window goes
    std::string width;          ///< 洞口宽, mm
    std::string height;         ///< 洞口高, mm
    std::string count;          ///< 樘数
    std::string note;           ///< 说明
    std::string projectNumber;  ///< 工程编号
    std::string typeNumber;     ///< 门窗编号; see formula/composite.h
    std::string number;         ///< 编号
};

// Numbers are put into the statements bare, as they were typed, texts between quotes, and a quote in one
// breaks its statement. Every routine throws StoreError when the store refuses a statement; what was
// executed before it stays. Each change is one command.

/// The windows of a project by their number.
std::vector<WindowEntry> ListWindows(Connection& connection, std::string_view projectNumber);

/// The labels that were saved with a window.
std::vector<LabelRow> LoadLabels(Connection& connection, std::string_view windowNumber);

/// Writes the row of a window as it stands, under its own number; for a caller that has a command open.
void InsertWindowRow(Connection& connection, const WindowEntry& window);

/// Adds a window with its labels under the next number and returns that number; `window.number` is
/// ignored. A label's name of more than five characters is refused, after the window was written.
std::string AddWindow(Connection& connection, const WindowEntry& window, std::span<const LabelRow> labels);

/// Writes name, position, sizes, count and note of the window with `window.number` and replaces its labels.
void UpdateWindow(Connection& connection, const WindowEntry& window, std::span<const LabelRow> labels);

/// Deletes a plain or composite window with its labels.
void DeleteWindow(Connection& connection, std::string_view windowNumber);

}  // namespace kalvane
