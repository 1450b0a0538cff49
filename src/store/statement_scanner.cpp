#include "store/statement_scanner.h"

#include "numeric/text.h"
#include "platform/error.h"

namespace kalvane {
namespace {

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Length of the number at the start of `text`: digits, a point, an exponent.
std::size_t NumberLength(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && (IsDigit(text[i]) || text[i] == '.')) ++i;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t exponent = i + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        if (exponent < text.size() && IsDigit(text[exponent])) {
            while (exponent < text.size() && IsDigit(text[exponent])) ++exponent;
            i = exponent;
        }
    }
    return i;
}

/// Whether a minus behind this shape is a sign and not a subtraction.
bool EndsWhereOperandStarts(std::string_view shape) {
    shape = Trim(shape);
    return !shape.empty() && std::string_view("(,=<>*/+").find(shape.back()) != std::string_view::npos;
}

class Scanner {
  public:
    Scanner(std::string_view sql, ScannedStatement& result) : sql_(sql), result_(result) {}

    void Run() {
        while (at_ < sql_.size()) {
            const char c = sql_[at_];
            if (IsDigit(c) || (c == '.' && at_ + 1 < sql_.size() && IsDigit(sql_[at_ + 1]))) {
                TakeNumber(false);
            } else if (IsNameByte(c)) {
                TakeName();
            } else if (c == '\'') {
                TakeText();
            } else if (c == '-' && StartsNegativeNumber()) {
                ++at_;
                TakeNumber(true);
            } else {
                TakeSymbol(c);
            }
        }
    }

  private:
    void TakeName() {
        const std::size_t start = at_;
        while (at_ < sql_.size() && IsNameByte(sql_[at_])) ++at_;
        result_.shape.append(sql_, start, at_ - start);
    }

    void TakeNumber(bool isNegative) {
        const std::size_t length = NumberLength(sql_.substr(at_));
        Literal literal;
        literal.isNegative = isNegative;
        literal.source = sql_.substr(at_, length);
        AddLiteral(literal);
        at_ += length;
    }

    void TakeText() {
        const std::size_t start = ++at_;
        Literal literal;
        literal.isText = true;
        for (;; ++at_) {
            if (at_ >= sql_.size()) {
                throw StoreError("语句里的引号不成对，文字中不能含有单引号（'）。");
            }
            if (sql_[at_] != '\'') continue;
            if (at_ + 1 >= sql_.size() || sql_[at_ + 1] != '\'') break;
            literal.hasDoubledQuotes = true;
            ++at_;
        }
        literal.source = sql_.substr(start, at_ - start);
        AddLiteral(literal);
        ++at_;
    }

    void TakeSymbol(char c) {
        if (std::string_view(" \t\r\n(),*+-/=<>").find(c) == std::string_view::npos) {
            throw StoreError(std::string("语句里有不能识别的字符“") + c + "”。");
        }
        result_.shape += c;
        ++at_;
    }

    bool StartsNegativeNumber() const {
        const std::string_view rest = sql_.substr(at_ + 1);
        const bool number =
            !rest.empty() && (IsDigit(rest[0]) || (rest.size() > 1 && rest[0] == '.' && IsDigit(rest[1])));
        return number && EndsWhereOperandStarts(result_.shape);
    }

    void AddLiteral(const Literal& literal) {
        result_.shape += '?';
        result_.literals.push_back(literal);
    }

    std::string_view sql_;
    ScannedStatement& result_;
    std::size_t at_ = 0;
};

}  // namespace

bool IsNameByte(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

void ScanStatement(std::string_view sql, ScannedStatement& result) {
    result.shape.clear();
    result.literals.clear();
    Scanner(sql, result).Run();
}

}  // namespace kalvane
