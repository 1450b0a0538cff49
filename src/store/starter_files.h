#pragma once

#include <span>
#include <string_view>

namespace kalvane {

/// One file of the starter library as it stands in the sources.
struct StarterFile {
    std::string_view
        name;  ///< path below data/starter/, for example "型材.tsv", "drawings/sliding-2.MC" or "help.txt"
    std::string_view content;
};

/// Content of the built-in file of that name. Throws FileError when there is none.
std::string_view StarterContent(std::string_view name);

/// The files built into the program, in name order.
std::span<const StarterFile> StarterFiles();

}  // namespace kalvane
