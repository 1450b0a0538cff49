#include "numeric/text.h"

#include <algorithm>

namespace kalvane {
namespace {

constexpr bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

constexpr char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// Full-width small letters are U+FF41 to U+FF5A, bytes EF BD 81 to EF BD 9A; the capitals, U+FF21 to
/// U+FF3A, are EF BC A1 to EF BC BA.
bool IsFullWidthSmall(std::string_view text, std::size_t i) {
    if (i + 2 >= text.size()) return false;
    const auto b0 = static_cast<unsigned char>(text[i]);
    const auto b1 = static_cast<unsigned char>(text[i + 1]);
    const auto b2 = static_cast<unsigned char>(text[i + 2]);
    return b0 == 0xEF && b1 == 0xBD && b2 >= 0x81 && b2 <= 0x9A;
}

}  // namespace

std::string_view Trim(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

std::string UpperCase(std::string_view text) {
    std::string result(text);
    MakeUpperCase(result);
    return result;
}

void MakeUpperCase(std::string& text) {
    bool isAscii = true;
    for (char& c : text) {
        isAscii = isAscii && static_cast<unsigned char>(c) < 0x80;
        c = Upper(c);
    }
    for (std::size_t i = 0; !isAscii && i < text.size(); ++i) {
        if (!IsFullWidthSmall(text, i)) continue;
        text[i + 1] = static_cast<char>(0xBC);
        text[i + 2] = static_cast<char>(static_cast<unsigned char>(text[i + 2]) + 0x20);
        i += 2;
    }
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (Upper(a[i]) != Upper(b[i])) return false;
    }
    return true;
}

std::string_view TakeUpTo(std::string_view& rest, std::string_view ends) {
    const std::size_t end = std::min(rest.find_first_of(ends), rest.size());
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return taken;
}

std::string OnOneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\\') {
            line += "\\\\";
        } else if (c == '\n') {
            line += "\\n";
        } else if (c == '\r') {
            line += "\\r";
        } else {
            line += c;
        }
    }
    return line;
}

std::string FromOneLine(std::string_view line) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\\' && i + 1 < line.size()) {
            ++i;
            text += line[i] == 'n' ? '\n' : line[i] == 'r' ? '\r' : line[i];
        } else {
            text += line[i];
        }
    }
    return text;
}

std::size_t CharCount(std::string_view text) {
    std::size_t count = 0;
    for (const char c : text) count += IsContinuation(c) ? 0 : 1;
    return count;
}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        std::size_t length = 1;
        char32_t code = lead;
        if (lead >= 0xF0 && lead <= 0xF4) {
            length = 4;
            code = lead & 0x07U;
        } else if (lead >= 0xE0) {
            length = 3;
            code = lead & 0x0FU;
        } else if (lead >= 0xC2) {
            length = 2;
            code = lead & 0x1FU;
        } else if (lead >= 0x80) {
            return false;
        }
        if (lead > 0xF4 || i + length > bytes.size()) return false;
        for (std::size_t k = 1; k < length; ++k) {
            if (!IsContinuation(bytes[i + k])) return false;
            code = (code << 6) | (static_cast<unsigned char>(bytes[i + k]) & 0x3FU);
        }
        const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
        const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
        if (overlong || surrogate || code > 0x10FFFF) return false;
        i += length;
    }
    return true;
}

}  // namespace kalvane
