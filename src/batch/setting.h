#pragma once

#include <string>

namespace kalvane {

/// A NAME=VALUE word of the command line.
struct Setting {
    std::string name;
    std::string text;
};

/// Line ends in the value are written \n. Throws Error when there is no "=".
Setting ParsedSetting(const std::string& word);

}  // namespace kalvane
