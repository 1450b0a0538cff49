#include "store/dialect.h"

#include "numeric/error.h"
#include "store/dialect_expression.h"
#include "store/dialect_tokens.h"

namespace kalvane {
namespace {

std::string Quoted(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

/// Walks the tokens once and writes the translation beside.
class Translator {
  public:
    explicit Translator(std::string_view shape) : tokens_(shape) {}

    Translation Run() {
        if (tokens_.Accept("SELECT")) {
            Select();
        } else if (tokens_.Accept("INSERT")) {
            Insert();
        } else if (tokens_.Accept("UPDATE")) {
            Update();
        } else if (tokens_.Accept("DELETE")) {
            Delete();
        } else {
            tokens_.Fail();
        }
        if (!tokens_.AtEnd()) tokens_.Fail();
        return std::move(result_);
    }

  private:
    const Table* TableName() {
        if (tokens_.Peek().kind != TokenKind::Name) tokens_.Fail();
        const std::string name = tokens_.Take().text;
        const Table* table = FindTable(name);
        if (table == nullptr) throw StoreError("没有表“" + name + "”。");
        Write(Quoted(table->name));
        return table;
    }

    const Column* ColumnName(const Table& table) {
        if (tokens_.Peek().kind != TokenKind::Name) tokens_.FailOnValue();
        const std::string name = tokens_.Take().text;
        const Column* column = FindColumn(table, name);
        if (column == nullptr) {
            throw StoreError("表“" + std::string(table.name) + "”没有列“" + name + "”。");
        }
        return column;
    }

    void Write(std::string_view text) {
        if (!result_.sql.empty()) result_.sql += ' ';
        result_.sql += text;
    }

    void Where(const Table* table) {
        if (!tokens_.Accept("WHERE")) return;
        Write("WHERE " + ExpressionTranslator(tokens_, table, result_).Expression());
    }

    void Select() {
        result_.kind = StatementKind::Select;
        Write("SELECT");
        if (tokens_.Accept("DISTINCT")) Write("DISTINCT");
        ExpressionTranslator expressions(tokens_, FindTable(tokens_.NameBehind("FROM")), result_);
        Write(Items([&] { return SelectedItem(expressions); }));
        tokens_.Expect("FROM");
        Write("FROM");
        Where(TableName());
        std::string keys;
        if (tokens_.Accept("GROUP")) {
            tokens_.Expect("BY");
            keys = Items([&] { return expressions.Expression(); });
            Write("GROUP BY " + keys);
        }
        if (tokens_.Accept("ORDER")) {
            tokens_.Expect("BY");
            Write("ORDER BY " + Items([&] { return OrderKey(expressions); }));
        } else if (!keys.empty()) {
            Write("ORDER BY " + keys);
        } else if (!expressions.HasTotals()) {
            Write("ORDER BY rowid");
        }
    }

    std::string SelectedItem(ExpressionTranslator& expressions) {
        if (tokens_.Accept("*")) return "*";
        const std::string item = expressions.ExpressionWithTotals();
        if (!tokens_.Accept("AS")) return item;
        if (tokens_.Peek().kind != TokenKind::Name) tokens_.Fail();
        return item + " AS " + Quoted(tokens_.Take().text);
    }

    std::string OrderKey(ExpressionTranslator& expressions) {
        const std::string key = expressions.ExpressionWithTotals();
        if (tokens_.Accept("DESC")) return key + " DESC";
        tokens_.Accept("ASC");
        return key;
    }

    /// Items separated by commas.
    template <typename Item>
    std::string Items(Item item) {
        std::string items = item();
        while (tokens_.Accept(",")) items += ", " + item();
        return items;
    }

    void Delete() {
        result_.kind = StatementKind::Delete;
        tokens_.Accept("*");
        tokens_.Expect("FROM");
        Write("DELETE FROM");
        Where(TableName());
    }

    /// One value that goes to a column: a bare literal is converted when it is bound, anything else by a
    /// function the connection offers.
    std::string Value(const Table& table, const Column& column) {
        const WrittenValue written{&table, &column};
        const Token& next = tokens_.PeekAfter();
        const bool isAlone =
            next.kind == TokenKind::End || next.text == "," || next.text == ")" || next.text == "WHERE";
        if (tokens_.Peek().kind == TokenKind::Parameter && isAlone) {
            tokens_.Take();
            result_.parameters.push_back(written);
            return "?";
        }
        const std::string value = ExpressionTranslator(tokens_, &table, result_).Expression();
        result_.computed.push_back(written);
        return "kalvane_store(" + value + ", " + std::to_string(result_.computed.size() - 1) + ")";
    }

    void Insert() {
        result_.kind = StatementKind::Insert;
        tokens_.Expect("INTO");
        Write("INSERT INTO");
        const Table& table = *TableName();
        std::vector<const Column*> columns;
        if (tokens_.Accept("(")) {
            Write("(" + Items([&] {
                      columns.push_back(ColumnName(table));
                      return Quoted(columns.back()->name);
                  }) +
                  ")");
            tokens_.Expect(")");
        } else {
            for (const Column& column : table.columns) columns.push_back(&column);
        }
        tokens_.Expect("VALUES");
        tokens_.Expect("(");
        std::size_t count = 0;
        Write("VALUES (" + Items([&] {
                  if (count == columns.size()) tokens_.Fail();
                  return Value(table, *columns[count++]);
              }) +
              ")");
        if (count < columns.size()) tokens_.Fail();
        tokens_.Expect(")");
    }

    void Update() {
        result_.kind = StatementKind::Update;
        Write("UPDATE");
        const Table* table = TableName();
        tokens_.Expect("SET");
        Write("SET");
        Write(Items([&] {
            const Column* column = ColumnName(*table);
            tokens_.Expect("=");
            return Quoted(column->name) + " = " + Value(*table, *column);
        }));
        Where(table);
    }

    TokenReader tokens_;
    Translation result_;
};

}  // namespace

Translation TranslateStatement(std::string_view shape) {
    return Translator(shape).Run();
}

}  // namespace kalvane
