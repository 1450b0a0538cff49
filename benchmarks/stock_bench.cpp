#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>
#include <vector>

#include "scratch_store.h"
#include "store/helpers.h"
#include "warehouse/goods_notes.h"

namespace kalvane {
namespace {

constexpr int kLines = 1000;
constexpr int kMaterials = 400;  // so that most lines find their stock row

std::vector<NoteLine> Lines() {
    std::vector<NoteLine> lines;
    for (int i = 0; i < kLines; ++i) {
        const std::string code = "K60-" + std::to_string(i % kMaterials);
        lines.push_back({"60推拉框", code, "支", "38.5", std::to_string(i % 90 + 1), "型材"});
    }
    return lines;
}

void ConfirmThousandLines(benchmark::State& state) {
    bench::ScratchStore store(StoreKind::Stock);
    const std::vector<NoteLine> lines = Lines();
    for (auto _ : state) {
        ConfirmNote(store.connection, NoteKind::In,
                    {NextEnterNo(store.connection), "甲厂", "", "生产", "P-7", "王", "2026-11-25", lines});
    }
    state.counters["lines"] = kLines;
}
BENCHMARK(ConfirmThousandLines)->Unit(benchmark::kMillisecond);

void RunSql(sqlite3* database, const char* sql) {
    if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
}

/// A prepared statement whose text and number parameters are bound in turn.
class Statement {
  public:
    Statement(sqlite3* database, const char* sql) {
        if (sqlite3_prepare_v2(database, sql, -1, &statement_, nullptr) != SQLITE_OK) std::abort();
    }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement() { sqlite3_finalize(statement_); }

    Statement& Text(const std::string& text) {
        sqlite3_bind_text(statement_, ++bound_, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
        return *this;
    }
    Statement& Number(double number) {
        sqlite3_bind_double(statement_, ++bound_, number);
        return *this;
    }
    /// True when a row came.
    bool Run() {
        bound_ = 0;
        const int result = sqlite3_step(statement_);
        if (result != SQLITE_ROW && result != SQLITE_DONE) std::abort();
        sqlite3_reset(statement_);
        return result == SQLITE_ROW;
    }

  private:
    sqlite3_stmt* statement_ = nullptr;
    int bound_ = 0;
};

/// The least any program must do: the same statements, prepared once, in one transaction on the same disk.
void ConfirmSameLinesBare(benchmark::State& state) {
    bench::ScratchStore store(StoreKind::Stock);
    sqlite3* database = nullptr;
    if (sqlite3_open(store.file.c_str(), &database) != SQLITE_OK) std::abort();
    RunSql(database, "PRAGMA synchronous=FULL");
    const std::vector<NoteLine> lines = Lines();
    {
        Statement head(database, "INSERT INTO 入库单 VALUES (?,'甲厂',?,'生产','P-7','王',46351)");
        Statement row(database, "INSERT INTO 入库单子表 VALUES (?,?,?,?,?,?,?)");
        Statement look(database, "SELECT * FROM 库存表 WHERE 规格=?");
        Statement add(database, "UPDATE 库存表 SET 入库量=入库量+?,库存量=库存量+? WHERE 规格=?");
        Statement make(database, "INSERT INTO 库存表 VALUES (?,?,'甲厂',?,?,?,?)");
        int number = 0;
        for (auto _ : state) {
            RunSql(database, "BEGIN");
            double amount = 0;
            for (const NoteLine& line : lines) amount += std::stod(line.price) * std::stod(line.count);
            head.Number(++number).Number(amount).Run();
            for (const NoteLine& line : lines) {
                const double count = std::stod(line.count);
                row.Number(number).Text(line.name).Text(line.code).Text(line.unit);
                row.Number(std::stod(line.price)).Number(count).Text(line.kind).Run();
                if (look.Text(line.code).Run()) {
                    add.Number(count).Number(count).Text(line.code).Run();
                } else {
                    make.Text(line.name).Text(line.code).Text(line.unit).Text(line.kind);
                    make.Number(count).Number(count).Run();
                }
            }
            RunSql(database, "COMMIT");
        }
    }
    sqlite3_close(database);
    state.counters["lines"] = kLines;
}
BENCHMARK(ConfirmSameLinesBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
