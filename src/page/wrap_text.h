#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "page/page_target.h"

namespace kalvane {

/// Lines of at most `width` twips in the page's current font. A line breaks at line ends, blanks, anywhere
/// between Chinese characters (not before a closing or behind an opening mark), and behind the signs that
/// divide a pattern such as 1500*2+1200. What has no such place and is still too wide breaks between any two
/// characters; a line has one character at least.
std::vector<std::string> WrapText(const PageTarget& page, std::string_view utf8, float width);

}  // namespace kalvane
