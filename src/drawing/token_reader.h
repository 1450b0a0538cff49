#pragma once

#include <cstdint>
#include <streambuf>
#include <string>
#include <string_view>

namespace kalvane {

/// Splits a drawing file into tokens as it reads, so that a file of any size takes little memory. A token
/// ends at a line end (CR LF, LF or CR) or at a separator; blanks around it do not count.
class TokenReader {
  public:
    /// `source` must outlive the reader. `separators` are the characters that end a token besides line ends.
    explicit TokenReader(std::streambuf& source, std::string_view separators = ",")
        : source_(source), separators_(separators) {}

    bool AtEnd() const;

    /// The next token, valid until the next call; empty at the end of the file. Throws FileError for a token
    /// so long that this is no drawing file.
    std::string_view Next();

    /// A token as a number of 32 bits. Throws NumericError naming its line when it is none.
    float ToFloat(std::string_view token) const;

  private:
    std::streambuf& source_;
    std::string_view separators_;
    std::string token_;
    std::int64_t line_ = 0;
    bool atLineStart_ = true;
};

}  // namespace kalvane
