#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/schema.h"

namespace kalvane {

enum class StatementKind { Select, Insert, Update, Delete };

/// A value that a statement writes, and the column it goes to.
struct WrittenValue {
    const Table* table = nullptr;
    const Column* column = nullptr;
};

/// A statement in the engine's own language.
struct Translation {
    StatementKind kind = StatementKind::Select;
    std::string sql;
    /// For each "?" in order: the column it is written to, or nothing for a value that is only compared.
    std::vector<WrittenValue> parameters;
    /// Columns written by an expression rather than a bare literal. The engine's language reaches them as
    /// kalvane_store(expression, index into this list).
    std::vector<WrittenValue> computed;
};

/// Translates a statement's shape (statement_scanner.h). The dialect: "Delete * from" beside "Delete
/// from"; names without regard to case, also where they are the engine's reserved words (Line, Count,
/// User); "/" divides as real numbers; texts compare exactly, Float32 columns in 32
/// bits; grouped rows come in key order and other
/// rows in the order in which they were written. Throws StoreError for anything else, a second statement
/// among it.
Translation TranslateStatement(std::string_view shape);

}  // namespace kalvane
