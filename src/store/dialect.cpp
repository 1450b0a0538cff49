#include "store/dialect.h"

#include <algorithm>
#include <array>
#include <optional>

#include "numeric/error.h"
#include "numeric/text.h"
#include "store/statement_scanner.h"

namespace kalvane {
namespace {

enum class TokenKind { Name, Keyword, Function, Parameter, Symbol, End };

struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;  // keywords and functions in capitals
};

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

/// Walks the tokens once and writes the translation beside.
class Translator {
  public:
    explicit Translator(std::string_view shape) : tokens_(Tokenise(shape)) {}

    Translation Run() {
        if (Accept("SELECT")) {
            Select();
        } else if (Accept("INSERT")) {
            Insert();
        } else if (Accept("UPDATE")) {
            Update();
        } else if (Accept("DELETE")) {
            Delete();
        } else {
            Fail();
        }
        if (Peek().kind != TokenKind::End) Fail();
        return std::move(result_);
    }

  private:
    const Token& Peek() const { return tokens_[at_]; }
    bool At(std::string_view word) const {
        return (Peek().kind == TokenKind::Keyword || Peek().kind == TokenKind::Symbol) && Peek().text == word;
    }
    bool Accept(std::string_view word) {
        if (!At(word)) return false;
        ++at_;
        return true;
    }
    void Expect(std::string_view word) {
        if (!Accept(word)) Fail();
    }

    [[noreturn]] void Fail() const {
        if (Peek().kind == TokenKind::End) throw StoreError("语句不完整，数字栏不能为空。");
        throw StoreError("语句有语法错误，在“" + Peek().text +
                         "”附近。请检查输入：文字里不能有单引号（'），数字栏里只能填数字。");
    }

    static std::string Quoted(const std::string& name) { return "\"" + name + "\""; }

    const Table* TableName() {
        if (Peek().kind != TokenKind::Name) Fail();
        const Table* table = FindTable(Peek().text);
        if (table == nullptr) throw StoreError("没有表“" + Peek().text + "”。");
        Write(Quoted(std::string(table->name)));
        ++at_;
        return table;
    }

    const Column* ColumnName(const Table& table) {
        if (Peek().kind != TokenKind::Name) Fail();
        const Column* column = FindColumn(table, Peek().text);
        if (column == nullptr) {
            throw StoreError("表“" + std::string(table.name) + "”没有列“" + Peek().text + "”。");
        }
        ++at_;
        return column;
    }

    void Write(std::string_view text) {
        if (!result_.sql.empty()) result_.sql += ' ';
        result_.sql += text;
    }

    /// Writes one token of an expression.
    void ExpressionToken() {
        const Token& token = Peek();
        switch (token.kind) {
            case TokenKind::Name:
                if (tokens_[at_ + 1].text == "(" && tokens_[at_ + 1].kind == TokenKind::Symbol) Fail();
                Write(Quoted(token.text));
                break;
            case TokenKind::Parameter:
                result_.parameters.push_back({});
                Write("?");
                break;
            case TokenKind::Symbol:
                // Whole numbers divide as real ones; the factor binds exactly as the division does.
                Write(token.text == "/" ? "* 1.0 /" : token.text);
                break;
            case TokenKind::Function:
                hasAggregate_ = true;
                Write(token.text);
                break;
            case TokenKind::Keyword:
                Write(token.text);
                break;
            case TokenKind::End:
                Fail();
        }
        ++at_;
    }

    /// Writes an expression up to one of the words that may follow it at the same depth, or the end.
    void Expression(std::initializer_list<std::string_view> stops) {
        int depth = 0;
        const std::size_t start = at_;
        while (Peek().kind != TokenKind::End) {
            if (depth == 0) {
                bool stop = false;
                for (const std::string_view word : stops) stop = stop || At(word);
                if (stop) break;
            }
            if (At("(")) ++depth;
            if (At(")") && --depth < 0) Fail();
            if (Peek().kind == TokenKind::Keyword && IsClause(Peek().text)) Fail();
            ExpressionToken();
        }
        if (at_ == start || depth != 0) Fail();
    }

    static bool IsClause(std::string_view word) {
        return word != "AND" && word != "OR" && word != "NOT" && word != "IS" && word != "NULL" &&
               word != "LIKE" && word != "IN" && word != "BETWEEN" && word != "AS" && word != "ASC" &&
               word != "DESC" && word != "DISTINCT";
    }

    void Where(std::initializer_list<std::string_view> stops) {
        if (!Accept("WHERE")) return;
        Write("WHERE");
        Expression(stops);
    }

    void Select() {
        result_.kind = StatementKind::Select;
        Write("SELECT");
        Expression({"FROM"});
        Expect("FROM");
        Write("FROM");
        TableName();
        Where({"GROUP", "ORDER"});
        std::string keys;
        if (Accept("GROUP")) {
            Expect("BY");
            Write("GROUP BY");
            const std::size_t before = result_.sql.size();
            Expression({"ORDER"});
            keys = result_.sql.substr(before);
        }
        if (Accept("ORDER")) {
            Expect("BY");
            Write("ORDER BY");
            Expression({});
        } else if (!keys.empty()) {
            Write("ORDER BY" + keys);
        } else if (!hasAggregate_) {
            Write("ORDER BY rowid");
        }
    }

    void Delete() {
        result_.kind = StatementKind::Delete;
        Accept("*");
        Expect("FROM");
        Write("DELETE FROM");
        TableName();
        Where({});
    }

    /// One value that goes to a column: a bare literal is converted when it is bound, anything else by a
    /// function the connection offers.
    void Value(const Table& table, const Column& column, std::initializer_list<std::string_view> stops) {
        const WrittenValue written{&table, &column};
        const Token& next = tokens_[at_ + (Peek().kind == TokenKind::End ? 0 : 1)];
        bool alone = next.kind == TokenKind::End;
        for (const std::string_view word : stops) alone = alone || next.text == word;
        if (Peek().kind == TokenKind::Parameter && alone) {
            result_.parameters.push_back(written);
            Write("?");
            ++at_;
            return;
        }
        Write("kalvane_store(");
        Expression(stops);
        result_.sql += ", " + std::to_string(result_.computed.size()) + ")";
        result_.computed.push_back(written);
    }

    void Insert() {
        result_.kind = StatementKind::Insert;
        Expect("INTO");
        Write("INSERT INTO");
        const Table& table = *TableName();
        std::vector<const Column*> columns;
        if (Accept("(")) {
            Write("(");
            do {
                columns.push_back(ColumnName(table));
                Write(columns.size() > 1 ? ", " + Quoted(std::string(columns.back()->name))
                                         : Quoted(std::string(columns.back()->name)));
            } while (Accept(","));
            Expect(")");
            Write(")");
        } else {
            for (const Column& column : table.columns) columns.push_back(&column);
        }
        Expect("VALUES");
        Expect("(");
        Write("VALUES (");
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (i > 0) {
                Expect(",");
                Write(",");
            }
            Value(table, *columns[i], {",", ")"});
        }
        Expect(")");
        Write(")");
    }

    void Update() {
        result_.kind = StatementKind::Update;
        Write("UPDATE");
        const Table& table = *TableName();
        Expect("SET");
        Write("SET");
        do {
            const Column* column = ColumnName(table);
            if (!result_.sql.ends_with("SET")) Write(",");
            Expect("=");
            Write(Quoted(std::string(column->name)) + " =");
            Value(table, *column, {",", "WHERE"});
        } while (Accept(","));
        Where({});
    }

    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    bool hasAggregate_ = false;
    Translation result_;
};

}  // namespace

Translation TranslateStatement(std::string_view shape) {
    return Translator(shape).Run();
}

}  // namespace kalvane
