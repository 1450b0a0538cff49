#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/notice.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// When and from which windows the raw rows in the store were gathered. Kept in a file beside the store, so
/// that whoever prices them tomorrow can still see it.
struct GatheringRecord {
    std::string time;     ///< as it is shown
    std::string project;  ///< 工程名称
    std::vector<WindowEntry> windows;
    std::vector<std::string> cutShort;  ///< names of windows of which rows are missing
    bool endedEarly = false;            ///< a composite failed: the windows after it are missing

    /// One line for the operator.
    std::string Text() const;
    /// True when it was gathered from these windows, in this order, with these sizes and counts.
    bool IsOf(std::span<const WindowEntry> others) const;
};

/// Gathers the windows as GatherTallies does and keeps the record of it, also when a failure ends the
/// gathering. Throws as GatherTallies does, and FileError when the record cannot be written.
void GatherAndRecord(Connection& connection, const std::string& project, std::span<const WindowEntry> windows,
                     const std::string& time, Notice& notice);

/// The record of what is in the store; nothing when there is none, or when the raw rows are not those that it
/// was written for, as after a backup was restored.
std::optional<GatheringRecord> LoadGatheringRecord(Connection& connection);

}  // namespace kalvane
