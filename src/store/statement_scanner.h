#pragma once

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

/// True for a byte that can stand in a name: a letter, a digit, "_", or a part of a character beyond ASCII.
bool IsNameByte(char c);

}  // namespace kalvane
