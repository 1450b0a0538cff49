#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

/// UTF-8 to GBK, the code page of drawing and demand files. Throws CodePageError naming the first character
/// that GBK does not hold.
std::string ToGbk(std::string_view utf8);

/// GBK to UTF-8. Bytes that are no GBK become U+FFFD.
std::string FromGbk(std::string_view gbk);

/// Text of a file of unknown code page: UTF-8 when it has a byte order mark (which is dropped) or is
/// well-formed and holds a character of three bytes or more, else GBK. The result is UTF-8.
std::string DecodeFileText(std::string_view bytes);

/// Code of each character of a UTF-8 text in the system's code page (GBK), as signed 16-bit words: one
/// byte as 0 to 255, two bytes as lead * 256 + trail. A character outside the code page counts as "?".
std::vector<std::int16_t> CodePageWords(std::string_view utf8);

}  // namespace kalvane
