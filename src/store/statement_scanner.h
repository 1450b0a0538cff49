#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

/// A literal of a statement, taken out of its text.
struct Literal {
    bool isText = false;
    bool isNegative = false;  ///< a number that a minus sign belongs to
    std::string_view source;  ///< digits of a number, or the inside of the quotes
    bool hasDoubledQuotes = false;
};

/// A statement split into its shape, with "?" in place of every literal, and the literals in order. Two
/// statements that differ in values alone have one shape, so that they share one prepared statement, and
/// a value is never read as a part of the statement.
struct ScannedStatement {
    std::string shape;
    std::vector<Literal> literals;
};

/// Splits `sql`, which must outlive the result; its buffers are reused. Throws StoreError on a quote
/// without a partner or a character that no statement holds.
void ScanStatement(std::string_view sql, ScannedStatement& result);

/// What a byte of a statement can be.
enum class ByteClass : std::uint8_t { Other, Name, Digit, Symbol };

/// A name is made of letters, digits, "_" and characters beyond ASCII, of which each byte counts here.
inline ByteClass ClassOf(char c) {
    static constexpr auto kClasses = [] {
        std::array<ByteClass, 256> table{};
        for (std::size_t byte = 0x80; byte < table.size(); ++byte) table[byte] = ByteClass::Name;
        for (unsigned char byte = 'a'; byte <= 'z'; ++byte) table[byte] = ByteClass::Name;
        for (unsigned char byte = 'A'; byte <= 'Z'; ++byte) table[byte] = ByteClass::Name;
        table['_'] = ByteClass::Name;
        for (unsigned char byte = '0'; byte <= '9'; ++byte) table[byte] = ByteClass::Digit;
        for (const char symbol : {' ', '\t', '\r', '\n', '(', ')', ',', '*', '+', '-', '/', '=', '<', '>'}) {
            table[static_cast<unsigned char>(symbol)] = ByteClass::Symbol;
        }
        return table;
    }();
    return kClasses[static_cast<unsigned char>(c)];
}

inline bool IsNameByte(char c) {
    return ClassOf(c) == ByteClass::Name || ClassOf(c) == ByteClass::Digit;
}

}  // namespace kalvane
