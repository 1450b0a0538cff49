#include "app/enc_decrypt.h"

#include <charconv>
#include <cstddef>

#include "platform/code_page.h"

namespace kalvane {
namespace {

using Words = std::vector<std::uint16_t>;

constexpr std::size_t kDigits = 4;

/// Digit of a word, 1 to 4 from the left.
std::uint16_t Digit(std::uint16_t word, int position) {
    return static_cast<std::uint16_t>((word >> (4 * (4 - position))) & 0xF);
}

std::uint16_t FromDigits(int first, int second, int third, int fourth) {
    return static_cast<std::uint16_t>(first << 12 | second << 8 | third << 4 | fourth);
}

/// The two halves of each pair of neighbours swap interleaved digits. The pass runs upwards, so a word that
/// was mixed with its left neighbour is mixed with the right one next.
void Mix(Words& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::uint16_t p = words[i - 1];
        const std::uint16_t q = words[i];
        words[i - 1] = FromDigits(Digit(p, 2), Digit(q, 2), Digit(p, 4), Digit(q, 4));
        words[i] = FromDigits(Digit(p, 1), Digit(q, 1), Digit(p, 3), Digit(q, 3));
    }
}

void ApplyKey(Words& words, std::int16_t key) {
    for (std::uint16_t& word : words) word ^= static_cast<std::uint16_t>(key);
}

Words WordsOfText(std::string_view text) {
    const std::vector<std::int16_t> codes = CodePageWords(text);
    return Words(codes.begin(), codes.end());
}

std::string ToHex(const Words& words) {
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string hex;
    for (const std::uint16_t word : words) {
        for (int position = 1; position <= 4; ++position) hex += kHex[Digit(word, position)];
    }
    return hex;
}

/// The words of a scrambled text; none when it cannot be one.
Words FromHex(std::string_view scrambled) {
    Words words;
    if (scrambled.size() < 2 * kDigits || scrambled.size() % kDigits != 0) return words;
    for (std::size_t at = 0; at < scrambled.size(); at += kDigits) {
        std::uint16_t word = 0;  // stays 0 for a group that holds no digit
        std::from_chars(scrambled.data() + at, scrambled.data() + at + kDigits, word, 16);
        words.push_back(word);
    }
    return words;
}

std::string ToText(const Words& words) {
    std::string bytes;
    for (const std::uint16_t word : words) {
        if (word > 0xFF) bytes += static_cast<char>(word >> 8);
        bytes += static_cast<char>(word & 0xFF);
    }
    return FromGbk(bytes);
}

}  // namespace

std::string clsEncDecrypt::EncBuf(std::string_view text) const {
    return KeyEncBuf(text, 0);
}

std::string clsEncDecrypt::DecBuf(std::string_view scrambled) const {
    return KeyDecBuf(scrambled, 0);
}

std::string clsEncDecrypt::CmprEncBuf(std::string_view scrambled) const {
    return ToText(FromHex(scrambled));
}

std::string clsEncDecrypt::KeyEncBuf(std::string_view text, std::int16_t key) const {
    Words words = WordsOfText(text);
    if (words.size() < 2) return {};
    Mix(words);
    ApplyKey(words, key);
    return ToHex(words);
}

std::string clsEncDecrypt::KeyDecBuf(std::string_view scrambled, std::int16_t key) const {
    Words words = FromHex(scrambled);
    Mix(words);
    ApplyKey(words, key);
    return ToText(words);
}

}  // namespace kalvane
