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

/// A character beyond ASCII; `length` bytes of UTF-8, 1 for a byte that begins no character of two or three.
struct Character {
    char32_t code;
    std::size_t length;
};

Character CharacterAt(std::string_view text, std::size_t i) {
    const auto byte = [text, i](std::size_t k) { return static_cast<unsigned char>(text[i + k]); };
    const auto continues = [text, i](std::size_t k) {
        return i + k < text.size() && IsContinuation(text[i + k]);
    };
    if ((byte(0) & 0xE0) == 0xC0 && continues(1)) {
        return {(byte(0) & 0x1FU) << 6 | (byte(1) & 0x3FU), 2};
    }
    if ((byte(0) & 0xF0) == 0xE0 && continues(1) && continues(2)) {
        return {(byte(0) & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU), 3};
    }
    return {byte(0), 1};
}

void PutCharacter(std::string& text, std::size_t i, Character character) {
    const auto continuation = [](char32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
    text[i + character.length - 1] = continuation(character.code);
    if (character.length == 2) {
        text[i] = static_cast<char>(0xC0U | character.code >> 6);
    } else {
        text[i + 1] = continuation(character.code >> 6);
        text[i] = static_cast<char>(0xE0U | character.code >> 12);
    }
}

/// The capital of a letter that GBK has, of as many bytes; what is no such letter stays.
constexpr char32_t Capital(char32_t code) {
    // The accented letters of pinyin; ü, é and the like stand in the range below. GBK has none of their
    // capitals, but who types one means the same name.
    constexpr std::u32string_view kBehindTheirCapitals = U"āēěīńňōūǎǐǒǔǖǘǚǜǹḿ";
    const auto isIn = [code](char32_t first, char32_t last) { return code >= first && code <= last; };
    const bool isLatin = isIn(U'à', U'þ') && code != U'÷';
    const bool isGreek = isIn(U'α', U'ω') && code != U'ς';
    if (isLatin || isGreek || isIn(U'а', U'я') || isIn(U'ａ', U'ｚ')) return code - 0x20;
    if (code == U'ё') return U'Ё';
    if (isIn(U'ⅰ', U'ⅹ')) return code - 0x10;
    return kBehindTheirCapitals.find(code) == std::u32string_view::npos ? code : code - 1;
}

/// Whether the byte begins a character that can have a capital. Chinese characters have other ones.
constexpr bool MayBeginSmallLetter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= 0xC3 && byte <= 0xE2) || byte == 0xEF;
}

Character CapitalAt(std::string_view text, std::size_t i) {
    const Character character = CharacterAt(text, i);
    return {character.length > 1 ? Capital(character.code) : character.code, character.length};
}

/// Bytes of the first `count` characters.
std::size_t LengthOf(std::string_view text, std::size_t count) {
    std::size_t length = 0;
    for (; count > 0 && length < text.size(); --count) {
        ++length;
        while (length < text.size() && IsContinuation(text[length])) ++length;
    }
    return length;
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
    if (isAscii) return;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!MayBeginSmallLetter(text[i])) continue;
        const Character capital = CapitalAt(text, i);
        if (capital.length > 1) PutCharacter(text, i, capital);
        i += capital.length - 1;
    }
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (Upper(a[i]) == Upper(b[i])) continue;
        // Characters that begin alike may end as the two cases of one letter.
        std::size_t start = i;
        while (start > 0 && IsContinuation(a[start])) --start;
        const Character left = CapitalAt(a, start);
        const Character right = CapitalAt(b, start);
        const bool isReached = start + left.length > i;
        if (!isReached || left.code != right.code || left.length != right.length) return false;
        i = start + left.length - 1;
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

std::string_view LeftChars(std::string_view text, std::size_t count) {
    return text.substr(0, LengthOf(text, count));
}

std::string_view RightChars(std::string_view text, std::size_t count) {
    const std::size_t all = CharCount(text);
    return MidChars(text, all - std::min(count, all) + 1);
}

std::string_view MidChars(std::string_view text, std::size_t position, std::size_t count) {
    return LeftChars(text.substr(LengthOf(text, position - 1)), count);
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
