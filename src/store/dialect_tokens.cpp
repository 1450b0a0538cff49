#include "store/dialect_tokens.h"

#include <algorithm>
#include <array>

#include "numeric/error.h"
#include "numeric/text.h"
#include "store/statement_scanner.h"

namespace kalvane {
namespace {

constexpr std::array<std::string_view, 24> kKeywords = {
    "SELECT", "DISTINCT", "DELETE", "FROM", "WHERE",  "GROUP",  "BY",      "ORDER",
    "ASC",    "DESC",     "INSERT", "INTO", "VALUES", "UPDATE", "SET",     "AND",
    "OR",     "NOT",      "IS",     "NULL", "LIKE",   "IN",     "BETWEEN", "AS"};
constexpr std::array<std::string_view, 5> kFunctions = {"MAX", "MIN", "SUM", "AVG", "COUNT"};

template <std::size_t N>
bool Contains(const std::array<std::string_view, N>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::vector<Token> Tokenise(std::string_view shape) {
    std::vector<Token> tokens;
    for (std::size_t i = 0; i < shape.size();) {
        const char c = shape[i];
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            ++i;
        } else if (IsNameByte(c)) {
            const std::size_t start = i;
            while (i < shape.size() && IsNameByte(shape[i])) ++i;
            std::string word(shape.substr(start, i - start));
            std::string capitals = UpperCase(word);
            if (Contains(kKeywords, capitals)) {
                tokens.push_back({TokenKind::Keyword, std::move(capitals)});
            } else if (i < shape.size() && shape[i] == '(' && Contains(kFunctions, capitals)) {
                tokens.push_back({TokenKind::Function, std::move(capitals)});
            } else {
                tokens.push_back({TokenKind::Name, std::move(word)});
            }
        } else if (c == '?') {
            tokens.push_back({TokenKind::Parameter, "?"});
            ++i;
        } else {
            const std::string_view pair = shape.substr(i, 2);
            const bool isPair = pair == "<=" || pair == ">=" || pair == "<>";
            tokens.push_back({TokenKind::Symbol, std::string(shape.substr(i, isPair ? 2 : 1))});
            i += isPair ? 2 : 1;
        }
    }
    tokens.push_back({});
    return tokens;
}

[[noreturn]] void FailOnEmptyBox() {
    throw StoreError("语句不完整，数字栏不能为空。");
}

}  // namespace

TokenReader::TokenReader(std::string_view shape) : tokens_(Tokenise(shape)) {}

bool TokenReader::At(std::string_view word) const {
    return (Peek().kind == TokenKind::Keyword || Peek().kind == TokenKind::Symbol) && Peek().text == word;
}

bool TokenReader::Accept(std::string_view word) {
    if (!At(word)) return false;
    ++at_;
    return true;
}

void TokenReader::Expect(std::string_view word) {
    if (!Accept(word)) Fail();
}

Token TokenReader::Take() {
    Token token = Peek();
    if (!AtEnd()) ++at_;
    return token;
}

std::string_view TokenReader::NameBehind(std::string_view keyword) const {
    for (std::size_t i = 0; i + 1 < tokens_.size(); ++i) {
        if (tokens_[i].kind == TokenKind::Keyword && tokens_[i].text == keyword) return tokens_[i + 1].text;
    }
    return {};
}

void TokenReader::Fail() const {
    if (AtEnd()) FailOnEmptyBox();
    const bool isLiteral = Peek().kind == TokenKind::Parameter;
    throw StoreError("语句有语法错误，在" + (isLiteral ? "一段文字或一个数" : "“" + Peek().text + "”") +
                     "附近。请检查输入：文字里不能有单引号（'），数字栏里只能填数字。");
}

void TokenReader::FailOnValue() const {
    if (At(",") || At(")") || Peek().kind == TokenKind::Keyword) FailOnEmptyBox();
    Fail();
}

}  // namespace kalvane
