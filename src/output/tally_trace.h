#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "output/tally_groups.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// A formula row of a window that a row of the tally sums.
struct TraceLine {
    std::string window;    ///< 门窗名称
    std::string position;  ///< 门窗类型
    std::string count;     ///< 樘数
    std::string name;      ///< 名称 of the formula row
    std::string formula;   ///< of its length, and of a panel its width; of a fitting its quantity
    std::string values;    ///< the same with the labels' values put in
    std::string length;    ///< mm
    std::string width;
    std::string quantity;  ///< of all units
    std::string typeId;    ///< 门窗.编号 of the window type with the formula
};

/// What a group of the tally sums, worked out afresh from the windows. A window with a failure has what stood
/// before it. Throws StoreError.
std::vector<TraceLine> TraceGroup(Connection& connection, std::span<const WindowEntry> windows,
                                  const TallyGroup& group);

/// A material by its class and key.
using MaterialKey = std::pair<MaterialClass, std::string>;

/// Where materials are used, each as "window 的“formula row”". Throws StoreError.
std::vector<std::string> FindUses(Connection& connection, std::span<const WindowEntry> windows,
                                  const MaterialKey& material);

}  // namespace kalvane
