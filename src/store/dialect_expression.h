#pragma once

#include "store/dialect.h"
#include "store/dialect_tokens.h"

namespace kalvane {

/// Translates the expressions of one statement. A comparison with a Float32 column, or with an expression
/// over one, is made in 32 bits: a number such as 12345.67 then equals the column that holds it. One with a
/// DateTime column takes a text for its date.
class ExpressionTranslator {
  public:
    /// `table` is the one whose columns the expressions name; null when there is none. The parameters of the
    /// expressions are added to `result`.
    ExpressionTranslator(TokenReader& tokens, const Table* table, Translation& result)
        : tokens_(tokens), table_(table), result_(result) {}

    /// The next expression in the engine's language; stops at what cannot be a part of it. Throws StoreError.
    std::string Expression();
    /// As Expression, which may hold sums, counts and the like.
    std::string ExpressionWithTotals();

    /// True when there was a sum, count or the like.
    bool HasTotals() const { return hasTotals_; }

  private:
    enum class Compared { AsItIs, AsDate, In32Bits };  // the greater one holds for both sides

    struct Part {
        std::string sql;
        Compared compared = Compared::AsItIs;
        bool isColumn = false;
    };

    Part Either();
    Part All();
    Part Negation();
    Part Comparison();
    std::string Among(const Part& left, const std::string& negation);
    std::string Between(const Part& left, const std::string& negation);
    Part Sum();
    Part Product();
    Part Signed();
    Part Value();
    Part Total();
    Part Parenthesis();

    static Compared ComparedAs(const Column* column);
    /// Writes the parts of one comparison as they are to be compared.
    static void MakeComparable(std::vector<Part>& parts);
    static Part Joined(const Part& left, std::string_view operation, const Part& right);

    TokenReader& tokens_;
    const Table* table_;
    Translation& result_;
    bool allowsTotals_ = false;
    bool hasTotals_ = false;
    int depth_ = 0;
};

}  // namespace kalvane
