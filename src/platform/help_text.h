#pragma once

#include <filesystem>
#include <string>

namespace kalvane {

inline constexpr const char* kHelpFileName = "help.txt";

/// Text of help.txt in the start-up folder, in UTF-8 whatever its code page; "无帮助文件！" when it cannot be
/// read.
std::string HelpText(const std::filesystem::path& folder);

}  // namespace kalvane
