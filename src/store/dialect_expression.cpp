#include "store/dialect_expression.h"

#include <algorithm>
#include <utility>

namespace kalvane {
namespace {

/// Far more than any statement needs, and less than the engine's own limit.
constexpr int kDeepest = 20;

}  // namespace

std::string ExpressionTranslator::Expression() {
    return Either().sql;
}

std::string ExpressionTranslator::ExpressionWithTotals() {
    allowsTotals_ = true;
    std::string sql = Expression();
    allowsTotals_ = false;
    return sql;
}

ExpressionTranslator::Part ExpressionTranslator::Either() {
    Part part = All();
    while (tokens_.Accept("OR")) part = {part.sql + " OR " + All().sql};
    return part;
}

ExpressionTranslator::Part ExpressionTranslator::All() {
    Part part = Negation();
    while (tokens_.Accept("AND")) part = {part.sql + " AND " + Negation().sql};
    return part;
}

ExpressionTranslator::Part ExpressionTranslator::Negation() {
    std::string negations;
    while (tokens_.Accept("NOT")) negations += "NOT ";
    Part part = Comparison();
    return negations.empty() ? part : Part{negations + part.sql};
}

ExpressionTranslator::Part ExpressionTranslator::Comparison() {
    Part left = Sum();
    for (const std::string_view operation : {"=", "<>", "<=", ">=", "<", ">"}) {
        if (!tokens_.Accept(operation)) continue;
        std::vector<Part> parts = {left, Sum()};
        MakeComparable(parts);
        return {parts[0].sql + " " + std::string(operation) + " " + parts[1].sql};
    }
    if (tokens_.Accept("IS")) {
        const std::string_view negation = tokens_.Accept("NOT") ? " IS NOT NULL" : " IS NULL";
        tokens_.Expect("NULL");
        return {left.sql + std::string(negation)};
    }
    const std::string negation = tokens_.Accept("NOT") ? " NOT " : " ";
    if (tokens_.Accept("LIKE")) return {left.sql + negation + "LIKE " + Sum().sql};
    if (tokens_.Accept("IN")) return {Among(left, negation)};
    if (tokens_.Accept("BETWEEN")) return {Between(left, negation)};
    if (negation != " ") tokens_.Fail();
    return left;
}

std::string ExpressionTranslator::Among(const Part& left, const std::string& negation) {
    std::vector<Part> parts = {left};
    tokens_.Expect("(");
    do {
        parts.push_back(Sum());
    } while (tokens_.Accept(","));
    tokens_.Expect(")");
    MakeComparable(parts);
    std::string sql = parts[0].sql + negation + "IN (" + parts[1].sql;
    for (std::size_t i = 2; i < parts.size(); ++i) sql += ", " + parts[i].sql;
    return sql + ")";
}

std::string ExpressionTranslator::Between(const Part& left, const std::string& negation) {
    std::vector<Part> parts = {left, Sum()};
    tokens_.Expect("AND");
    parts.push_back(Sum());
    MakeComparable(parts);
    return parts[0].sql + negation + "BETWEEN " + parts[1].sql + " AND " + parts[2].sql;
}

ExpressionTranslator::Part ExpressionTranslator::Sum() {
    Part part = Product();
    for (;;) {
        const bool isSum = tokens_.At("+");
        if (!isSum && !tokens_.At("-")) return part;
        tokens_.Take();
        part = Joined(part, isSum ? " + " : " - ", Product());
    }
}

ExpressionTranslator::Part ExpressionTranslator::Product() {
    Part part = Signed();
    for (;;) {
        const bool isProduct = tokens_.At("*");
        if (!isProduct && !tokens_.At("/")) return part;
        tokens_.Take();
        // Whole numbers divide as real ones; the factor binds exactly as the division does.
        part = Joined(part, isProduct ? " * " : " * 1.0 / ", Signed());
    }
}

ExpressionTranslator::Part ExpressionTranslator::Signed() {
    std::string signs;
    while (tokens_.At("-") || tokens_.At("+")) signs += tokens_.Take().text + " ";
    Part part = Value();
    return signs.empty() ? part : Part{signs + part.sql, part.compared};
}

ExpressionTranslator::Part ExpressionTranslator::Value() {
    if (tokens_.Accept("(")) return Parenthesis();
    if (tokens_.Accept("NULL")) return {"NULL"};
    switch (tokens_.Peek().kind) {
        case TokenKind::Parameter:
            tokens_.Take();
            result_.parameters.push_back({});
            return {"?"};
        case TokenKind::Function:
            return Total();
        case TokenKind::Name: {
            const std::string name = tokens_.Take().text;
            if (tokens_.At("(")) tokens_.Fail();
            const Column* column = table_ == nullptr ? nullptr : FindColumn(*table_, name);
            return {"\"" + name + "\"", ComparedAs(column), true};
        }
        default:
            tokens_.FailOnValue();
    }
}

ExpressionTranslator::Part ExpressionTranslator::Parenthesis() {
    if (++depth_ > kDeepest) tokens_.Fail();
    const Part inner = Either();
    tokens_.Expect(")");
    --depth_;
    return {"(" + inner.sql + ")", inner.compared};
}

ExpressionTranslator::Part ExpressionTranslator::Total() {
    if (!std::exchange(allowsTotals_, false)) tokens_.Fail();  // nor one inside another
    const std::string function = tokens_.Take().text;
    tokens_.Expect("(");
    Part inner;
    if (function == "COUNT" && tokens_.Accept("*")) {
        inner.sql = "*";
    } else {
        const std::string_view distinct = tokens_.Accept("DISTINCT") ? "DISTINCT " : "";
        inner = Either();
        inner.sql = std::string(distinct) + inner.sql;
    }
    tokens_.Expect(")");
    allowsTotals_ = hasTotals_ = true;
    return {function + "(" + inner.sql + ")"};
}

ExpressionTranslator::Compared ExpressionTranslator::ComparedAs(const Column* column) {
    if (column == nullptr) return Compared::AsItIs;
    if (column->type == ColumnType::DateTime) return Compared::AsDate;
    return column->type == ColumnType::Float32 ? Compared::In32Bits : Compared::AsItIs;
}

void ExpressionTranslator::MakeComparable(std::vector<Part>& parts) {
    Compared compared = Compared::AsItIs;
    for (const Part& part : parts) compared = std::max(compared, part.compared);
    if (compared == Compared::AsItIs) return;
    const std::string function = compared == Compared::AsDate ? "kalvane_date(" : "kalvane_float32(";
    for (Part& part : parts) {
        const bool isSo = part.isColumn && part.compared == compared;
        if (!isSo) part.sql = function + part.sql + ")";
    }
}

ExpressionTranslator::Part ExpressionTranslator::Joined(const Part& left, std::string_view operation,
                                                        const Part& right) {
    return {left.sql + std::string(operation) + right.sql, std::max(left.compared, right.compared)};
}

}  // namespace kalvane
