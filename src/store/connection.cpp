#include "store/connection.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <set>
#include <utility>

#include "numeric/assertion.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/column_conversion.h"
#include "store/comparison_functions.h"
#include "store/connection_implementation.h"
#include "store/engine_error.h"
#include "store/store_files.h"

namespace kalvane {
namespace {

/// Shapes differ by the source line that builds them, so a program has some dozens of them.
constexpr std::size_t kMostStatements = 256;

/// How long another process that holds the file is waited for.
constexpr int kBusyMilliseconds = 3000;

/// Of a number with hundreds of digits the beginning is enough to find it by.
constexpr std::size_t kShownDigits = 30;

EngineValue LiteralValue(const Literal& literal, std::string& scratch) {
    if (literal.isText) {
        if (!literal.hasDoubledQuotes) return literal.source;
        scratch.clear();
        for (std::size_t i = 0; i < literal.source.size(); ++i) {
            scratch += literal.source[i];
            if (literal.source[i] == '\'') ++i;
        }
        return std::string_view(scratch);
    }
    const char* end = literal.source.data() + literal.source.size();
    std::int64_t whole = 0;
    const auto parsed = std::from_chars(literal.source.data(), end, whole);
    if (parsed.ec == std::errc{} && parsed.ptr == end) return literal.isNegative ? -whole : whole;
    if (!IsNumeric(literal.source)) {
        throw StoreError("语句里的“" + std::string(literal.source) + "”不是数字。");
    }
    try {
        const double real = ParseNumber(literal.source);
        return literal.isNegative ? -real : real;
    } catch (const NumericError&) {
        throw StoreError("语句里的数“" + std::string(LeftChars(literal.source, kShownDigits)) +
                         "”太大，请改用较小的数。");
    }
}

/// A number as it was written, for a column that rounds decimals rather than a binary fraction.
std::string_view DecimalText(const Literal& literal, std::string& scratch) {
    scratch = (literal.isNegative ? "-" : "") + std::string(literal.source);
    return scratch;
}

/// The declared types whose values are not read as they are stored. An expression has no declared type.
ColumnType DeclaredType(const char* declared) {
    const std::string_view type = declared == nullptr ? "" : declared;
    if (type == "FLOAT32") return ColumnType::Float32;
    return type == "DATETIME" ? ColumnType::DateTime : ColumnType::Memo;
}

FieldValue NumberField(const PreparedStatement& statement, int column) {
    const ColumnType type = statement.types[static_cast<std::size_t>(column)];
    const double real = sqlite3_column_double(statement.handle, column);
    if (type == ColumnType::DateTime && IsDate(real)) return FieldValue(Date{real});
    if (type == ColumnType::Float32) return FieldValue(static_cast<float>(real));
    if (sqlite3_column_type(statement.handle, column) == SQLITE_FLOAT) return FieldValue(real);
    return FieldValue(std::int64_t{sqlite3_column_int64(statement.handle, column)});
}

/// The path as it is where the current folder cannot be found out.
std::filesystem::path AbsolutePath(const std::filesystem::path& file) {
    std::error_code failure;
    std::filesystem::path path = std::filesystem::absolute(file, failure);
    return failure ? file : path;
}

EngineValue ArgumentValue(sqlite3_value* argument) {
    switch (sqlite3_value_type(argument)) {
        case SQLITE_INTEGER:
            return std::int64_t{sqlite3_value_int64(argument)};
        case SQLITE_FLOAT:
            return sqlite3_value_double(argument);
        case SQLITE_NULL:
            return std::monostate{};
        default:
            return std::string_view(reinterpret_cast<const char*>(sqlite3_value_text(argument)),
                                    static_cast<std::size_t>(sqlite3_value_bytes(argument)));
    }
}

}  // namespace

void BindValue(sqlite3_stmt* statement, int position, const EngineValue& value, const std::string& scratch) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        sqlite3_bind_int64(statement, position, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, position, *real);
    } else if (const auto* text = std::get_if<std::string_view>(&value)) {
        sqlite3_bind_text(statement, position, text->data(), static_cast<int>(text->size()),
                          text->data() == scratch.data() ? SQLITE_TRANSIENT : SQLITE_STATIC);
    } else {
        sqlite3_bind_null(statement, position);
    }
}

Connection::Implementation::Implementation(const std::filesystem::path& path, StoreKind kind) : file(path) {
    const std::string name = path.filename().string();
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) throw StoreError("没有数据库文件“" + name + "”。");
    const int access = IsReadOnly(kind) ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int opened = sqlite3_open_v2(path.c_str(), &database, access | SQLITE_OPEN_NOMUTEX, nullptr);
    try {
        if (kind == StoreKind::Users) KeepToOwner(path);
        if (opened != SQLITE_OK) ThrowEngineError(database, name + "：");
        Configure(kind);
        CheckFile(name, kind);
    } catch (...) {
        sqlite3_close(database);
        throw;
    }
}

Connection::Implementation::~Implementation() {
    ForgetStatements();
    sqlite3_close(database);
}

void Connection::Implementation::Configure(StoreKind kind) {
    sqlite3_busy_timeout(database, kBusyMilliseconds);
    // A quoted name that is no column must be an error, never a text.
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_create_function_v2(database, "kalvane_store", 2, SQLITE_UTF8, this, &StoreFunction, nullptr,
                               nullptr, nullptr);
    AddComparisonFunctions(database, conversionFailure_);
    if (IsReadOnly(kind)) {
        sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
        Run("PRAGMA cell_size_check = ON");
    } else {
        // Beyond FULL this flushes the folder after the journal is gone: with a journal that a power cut
        // brings back, a confirmed command would be undone.
        Run("PRAGMA synchronous = EXTRA");
    }
}

void Connection::Implementation::CheckFile(const std::string& name, StoreKind kind) {
    if (kind != StoreKind::Legacy && ReadPragma("application_id") != std::to_string(kApplicationId)) {
        throw StoreDamage("文件“" + name + "”不是本系统的数据库，没有改动它。");
    }
    if (IsReadOnly(kind)) CheckIntegrity();
    if (kind != StoreKind::Legacy && std::stoi(ReadPragma("user_version")) > kSchemaVersion) {
        throw StoreError("数据库文件“" + name + "”是由更新版本的程序建立的，请用新版本打开。");
    }
    for (const Table& table : TablesOf(kind)) {
        const std::string where = "数据库文件“" + name + "”里没有表“" + std::string(table.name) + "”";
        const std::string probe = "SELECT * FROM \"" + std::string(table.name) + "\"";
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(database, probe.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
            throw StoreDamage(where + "，文件已损坏。");
        }
        std::set<std::string_view> columns;
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            columns.insert(sqlite3_column_name(statement, i));
        }
        // The columns of the earlier program's files go by their places.
        const auto missing =
            std::find_if(table.columns.begin(), table.columns.end(), [&](const Column& column) {
                return kind != StoreKind::Legacy && columns.count(column.name) == 0;
            });
        sqlite3_finalize(statement);
        if (missing != table.columns.end()) {
            throw StoreDamage(where + "的列“" + std::string(missing->name) + "”，文件已损坏。");
        }
    }
}

void Connection::Implementation::CheckIntegrity() {
    if (ReadPragma("integrity_check(1)") != kSoundStore) {
        throw StoreDamage("数据库文件“" + file.filename().string() + "”已损坏。");
    }
}

std::string Connection::Implementation::ReadPragma(const char* pragma) {
    sqlite3_stmt* statement = nullptr;
    const std::string sql = std::string("PRAGMA ") + pragma;
    std::string value;
    const bool read = sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK &&
                      sqlite3_step(statement) == SQLITE_ROW;
    if (read) value = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    if (!read) ThrowEngineError(database, file.filename().string() + "：");
    return value;
}

void Connection::Implementation::Run(const char* sql) {
    if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        ThrowEngineError(database);
    }
}

void Connection::Implementation::ForgetStatements() {
    for (auto& [shape, statement] : statements_) sqlite3_finalize(statement.handle);
    statements_.clear();
}

PreparedStatement& Connection::Implementation::Prepare(std::string_view sql) {
    ScanStatement(sql, scanned_);
    const auto known = statements_.find(scanned_.shape);
    if (known != statements_.end()) return known->second;
    PreparedStatement statement;
    statement.translation = TranslateStatement(scanned_.shape);
    if (sqlite3_prepare_v3(database, statement.translation.sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT,
                           &statement.handle, nullptr) != SQLITE_OK) {
        ThrowEngineError(database);
    }
    const int columns = sqlite3_column_count(statement.handle);
    std::vector<std::string> names;
    for (int column = 0; column < columns; ++column) {
        names.emplace_back(sqlite3_column_name(statement.handle, column));
        statement.types.push_back(DeclaredType(sqlite3_column_decltype(statement.handle, column)));
    }
    statement.names = std::make_shared<const std::vector<std::string>>(std::move(names));
    if (statements_.size() >= kMostStatements) ForgetStatements();
    return statements_.emplace(scanned_.shape, std::move(statement)).first->second;
}

void Connection::Implementation::BindLiterals(PreparedStatement& statement) {
    KALVANE_ASSERT(scanned_.literals.size() == statement.translation.parameters.size());
    std::string scratch;
    for (std::size_t i = 0; i < scanned_.literals.size(); ++i) {
        const Literal& literal = scanned_.literals[i];
        const WrittenValue& target = statement.translation.parameters[i];
        const bool isMoney = target.column != nullptr && target.column->type == ColumnType::Money;
        EngineValue value =
            isMoney && !literal.isText ? DecimalText(literal, scratch) : LiteralValue(literal, scratch);
        if (target.column != nullptr) value = ConvertForColumn(target, value, scratch);
        BindValue(statement.handle, static_cast<int>(i) + 1, value, scratch);
    }
}

int Connection::Implementation::Step(PreparedStatement& statement) {
    running_ = &statement;
    const int result = sqlite3_step(statement.handle);
    if (result == SQLITE_ROW || result == SQLITE_DONE) return result;
    const std::exception_ptr refused = std::exchange(conversionFailure_, nullptr);
    sqlite3_reset(statement.handle);  // keeps the failure
    if (refused != nullptr) std::rethrow_exception(refused);
    ThrowEngineError(database);
}

FieldValue Connection::Implementation::ReadField(const PreparedStatement& statement, int column) {
    switch (sqlite3_column_type(statement.handle, column)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
            return NumberField(statement, column);
        default:
            return FieldValue(
                std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement.handle, column)),
                            static_cast<std::size_t>(sqlite3_column_bytes(statement.handle, column))));
    }
}

void Connection::Implementation::StoreFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
    auto& self = *static_cast<Implementation*>(sqlite3_user_data(context));
    const auto index = static_cast<std::size_t>(sqlite3_value_int(arguments[1]));
    const WrittenValue& target = self.running_->translation.computed[index];
    try {
        std::string scratch;
        const EngineValue value = ConvertForColumn(target, ArgumentValue(arguments[0]), scratch);
        if (const auto* whole = std::get_if<std::int64_t>(&value)) {
            sqlite3_result_int64(context, *whole);
        } else if (const auto* real = std::get_if<double>(&value)) {
            sqlite3_result_double(context, *real);
        } else if (const auto* text = std::get_if<std::string_view>(&value)) {
            sqlite3_result_text(context, text->data(), static_cast<int>(text->size()), SQLITE_TRANSIENT);
        } else {
            sqlite3_result_null(context);
        }
    } catch (const Error&) {
        self.conversionFailure_ = std::current_exception();
        sqlite3_result_error(context, "conversion", -1);
    }
}

Connection::Connection(const std::filesystem::path& file, StoreKind kind)
    : implementation_(std::make_unique<Implementation>(AbsolutePath(file), kind)) {}

Connection::~Connection() = default;

void Connection::Execute(std::string_view sql) {
    PreparedStatement& statement = implementation_->Prepare(sql);
    if (statement.translation.kind == StatementKind::Select) throw StoreError("这里不能执行查询语句。");
    implementation_->BindLiterals(statement);
    implementation_->Step(statement);
    sqlite3_reset(statement.handle);
}

Cursor Connection::OpenCursor(std::string_view sql) {
    PreparedStatement& statement = implementation_->Prepare(sql);
    if (statement.translation.kind != StatementKind::Select) throw StoreError("这里只能执行查询语句。");
    implementation_->BindLiterals(statement);
    std::vector<FieldValue> cells;
    const int columns = static_cast<int>(statement.names->size());
    while (implementation_->Step(statement) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column) {
            cells.push_back(Implementation::ReadField(statement, column));
        }
    }
    sqlite3_reset(statement.handle);
    return Cursor(statement.names, std::move(cells));
}

void Connection::CheckIntegrity() {
    implementation_->CheckIntegrity();
}

const std::filesystem::path& Connection::File() const {
    return implementation_->file;
}

std::string Connection::ConnectionText() const {
    return "Provider=Microsoft.Jet.OLEDB.3.51;Persist Security Info=False;Data Source=" +
           implementation_->file.string();
}

}  // namespace kalvane
