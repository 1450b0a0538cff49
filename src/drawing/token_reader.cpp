#include "drawing/token_reader.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "platform/code_page.h"

namespace kalvane {
namespace {

using Traits = std::streambuf::traits_type;

constexpr std::size_t kLongestToken = 65536;
constexpr std::size_t kLongestQuote = 60;  // bytes of a token that a message names

bool IsEnd(int c) {
    return Traits::eq_int_type(c, Traits::eof());
}

}  // namespace

bool TokenReader::AtEnd() const {
    return IsEnd(source_.sgetc());
}

std::string_view TokenReader::Next() {
    if (atLineStart_) ++line_;
    token_.clear();
    atLineStart_ = true;
    for (int c = source_.sbumpc(); !IsEnd(c) && c != '\n'; c = source_.sbumpc()) {
        if (c == '\r') {
            if (source_.sgetc() == '\n') source_.sbumpc();
            break;
        }
        const char character = Traits::to_char_type(c);
        if (separators_.find(character) != std::string_view::npos) {
            atLineStart_ = false;
            break;
        }
        if (token_.size() >= kLongestToken) {
            throw FileError("文件第 " + std::to_string(line_) + " 行太长，不是图形文件。");
        }
        token_ += character;
    }
    return Trim(token_);
}

float TokenReader::ToFloat(std::string_view token) const {
    if (!IsNumeric(token)) {
        const std::string quote = DecodeFileText(token.substr(0, kLongestQuote));
        throw NumericError("图形文件第 " + std::to_string(line_) + " 行的“" + quote + "”不是数字。");
    }
    return NarrowToFloat(ParseNumber(token));
}

}  // namespace kalvane
