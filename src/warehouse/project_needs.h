#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/notice.h"
#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

/// What a project needs of a material.
struct MaterialNeed {
    std::string kind;  ///< one of MaterialKinds()
    std::string name;
    std::string code;   ///< 规格 in stock; of a panel its name
    std::string count;  ///< pieces, bars or sheets: whole
    std::string unit;
    std::string basis;  ///< how the count comes about, for the storekeeper
};

/// The projects and what they need. Projects stand above the warehouse: the main screen lays this road.
struct ProjectNeeds {
    /// Number and name of each project.
    std::function<std::vector<std::pair<std::string, std::string>>()> list;
    /// The needs of the project of that number. What could not be worked out is shown by the notice.
    std::function<std::vector<MaterialNeed>(const std::string& number, Notice& notice)> of;
};

/// A need beside the stock. The line takes what is there: its count is the need, or the stock when that is
/// less, "0" when there is none.
struct NeededLine {
    NoteLine line;
    std::string needed;
    std::string basis;
    std::string onHand;   ///< "0" without a stock row
    std::string lacking;  ///< empty when the stock suffices
};

/// The needs beside the stock, in their order. Name, unit and kind are those of the stock row where there is
/// one. `taken` are the lines that the note has already: the stock is what they leave. Throws StoreError.
std::vector<NeededLine> MatchNeeds(Connection& stock, const std::vector<MaterialNeed>& needs,
                                   const std::vector<NoteLine>& taken);

}  // namespace kalvane
