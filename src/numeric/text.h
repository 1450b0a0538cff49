#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kalvane {

/// `text` without blanks (U+0020) at both ends.
std::string_view Trim(std::string_view text);

/// UTF-8 text in capitals: ASCII letters and their full-width forms; all else stays.
std::string UpperCase(std::string_view text);
void MakeUpperCase(std::string& text);

/// True when both are the same but for ASCII letter case.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// Characters (code points) in a UTF-8 text; a Chinese character counts as one.
std::size_t CharCount(std::string_view text);

/// True when the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

}  // namespace kalvane
