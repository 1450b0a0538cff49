#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

enum class TokenKind { Name, Keyword, Function, Parameter, Symbol, End };

struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;  ///< keywords and functions in capitals
};

/// The words of a statement's shape, read once from the first to the last.
class TokenReader {
  public:
    explicit TokenReader(std::string_view shape);

    const Token& Peek() const { return tokens_[at_]; }
    /// The token after the next one.
    const Token& PeekAfter() const { return tokens_[AtEnd() ? at_ : at_ + 1]; }
    bool AtEnd() const { return Peek().kind == TokenKind::End; }

    /// Whether that keyword or symbol is next.
    bool At(std::string_view word) const;
    /// Takes it if it is.
    bool Accept(std::string_view word);
    /// Takes it; throws StoreError when something else is next.
    void Expect(std::string_view word);
    /// Takes the next token, whatever it is.
    Token Take();

    /// The name behind the first such keyword of the statement; empty when there is none.
    std::string_view NameBehind(std::string_view keyword) const;

    /// Throws StoreError for what is next.
    [[noreturn]] void Fail() const;
    /// The same where a value should be next. It is missing as a rule because a number's box was empty.
    [[noreturn]] void FailOnValue() const;

  private:
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
};

}  // namespace kalvane
