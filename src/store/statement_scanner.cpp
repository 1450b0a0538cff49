#include "store/statement_scanner.h"

#include "numeric/error.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

bool IsDigit(char c) {
    return ClassOf(c) == ByteClass::Digit;
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

class Scanner {
  public:
    Scanner(std::string_view sql, ScannedStatement& result) : sql_(sql), result_(result) {}

    void Run() {
        while (at_ < sql_.size()) {
            switch (ClassOf(sql_[at_])) {
                case ByteClass::Name:
                    while (at_ < sql_.size() && IsNameByte(sql_[at_])) ++at_;
                    break;
                case ByteClass::Digit:
                    TakeNumber(at_);
                    break;
                case ByteClass::Symbol:
                    if (sql_[at_] == '-' && StartsNumber(at_ + 1) && StartsOperand()) {
                        TakeNumber(at_ + 1);
                    } else {
                        ++at_;
                    }
                    break;
                case ByteClass::Other:
                    TakeOther();
                    break;
            }
        }
        KeepUpTo(at_);
    }

  private:
    bool StartsNumber(std::size_t i) const {
        if (i < sql_.size() && sql_[i] == '.') ++i;
        return i < sql_.size() && IsDigit(sql_[i]);
    }

    /// Whether a minus here is a sign and not a subtraction.
    bool StartsOperand() const {
        const std::string_view before = Trim(sql_.substr(0, at_));
        return !before.empty() && std::string_view("(,=<>*/+").find(before.back()) != std::string_view::npos;
    }

    void TakeOther() {
        if (sql_[at_] == '\'') {
            TakeText();
        } else if (StartsNumber(at_)) {
            TakeNumber(at_);
        } else {
            throw StoreError(std::string("语句里有不能识别的字符“") + sql_[at_] + "”。");
        }
    }

    /// The number whose digits begin at `digits`; a minus at the current place belongs to it.
    void TakeNumber(std::size_t digits) {
        Literal literal;
        literal.isNegative = digits > at_;
        literal.source = sql_.substr(digits, NumberLength(sql_.substr(digits)));
        AddLiteral(literal, digits + literal.source.size());
    }

    void TakeText() {
        Literal literal;
        literal.isText = true;
        std::size_t end = sql_.find('\'', at_ + 1);
        while (end != std::string_view::npos && sql_.substr(end + 1).starts_with('\'')) {
            literal.hasDoubledQuotes = true;
            end = sql_.find('\'', end + 2);
        }
        if (end == std::string_view::npos) {
            throw StoreError("语句里的引号不成对，文字中不能含有单引号（'）。");
        }
        literal.source = sql_.substr(at_ + 1, end - at_ - 1);
        AddLiteral(literal, end + 1);
    }

    /// Takes the literal from the current place up to `end` out of the text.
    void AddLiteral(const Literal& literal, std::size_t end) {
        KeepUpTo(at_);
        result_.shape += '?';
        result_.literals.push_back(literal);
        at_ = kept_ = end;
    }

    void KeepUpTo(std::size_t end) { result_.shape.append(sql_, kept_, end - kept_); }

    std::string_view sql_;
    ScannedStatement& result_;
    std::size_t at_ = 0;
    std::size_t kept_ = 0;  // what stands before is in the shape
};

}  // namespace

void ScanStatement(std::string_view sql, ScannedStatement& result) {
    result.shape.clear();
    result.literals.clear();
    Scanner(sql, result).Run();
}

}  // namespace kalvane
