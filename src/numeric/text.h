#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kalvane {

/// `text` without blanks (U+0020) at both ends.
std::string_view Trim(std::string_view text);

/// UTF-8 text in capitals: ASCII letters, their full-width forms, and the Greek, Cyrillic, accented Latin and
/// Roman numeral letters of GBK; all else stays. The text keeps its length in bytes.
std::string UpperCase(std::string_view text);
void MakeUpperCase(std::string& text);

/// True when both are the same but for the case of the letters that UpperCase knows.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// Takes what stands before the first of the characters `ends`, and that one, off the front of `rest`; all of
/// it when there is none.
std::string_view TakeUpTo(std::string_view& rest, std::string_view ends);

/// A text as it stands on one line of a file: backslashes and line ends are written as escapes, which
/// FromOneLine reads.
std::string OnOneLine(std::string_view text);
std::string FromOneLine(std::string_view line);

/// Characters (code points) in a UTF-8 text; a Chinese character counts as one.
std::size_t CharCount(std::string_view text);

/// The first or last `count` characters of a UTF-8 text, or `count` characters from `position` on, which
/// counts from 1. Beyond the ends of the text there is nothing.
std::string_view LeftChars(std::string_view text, std::size_t count);
std::string_view RightChars(std::string_view text, std::size_t count);
std::string_view MidChars(std::string_view text, std::size_t position,
                          std::size_t count = std::string_view::npos);

/// True when the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

}  // namespace kalvane
