#pragma once

#include <span>
#include <string_view>

namespace kalvane {

/// One file of the starter library as it stands in the sources.
struct StarterFile {
    std::string_view name;  ///< path below data/starter/, for example "型材.tsv" or "drawings/sliding-2.MC"
    std::string_view content;
};

/// The files built into the program, in name order.
std::span<const StarterFile> StarterFiles();

}  // namespace kalvane
