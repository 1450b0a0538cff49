#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>
#include <vector>

#include "optimise/demand.h"
#include "peak_memory.h"
#include "scratch_store.h"
#include "store/command_scope.h"
#include "window_rows.h"

namespace kalvane {
namespace {

constexpr int kWindows = 1000;
constexpr int kTypes = 12;
constexpr int kProfileRows = 14;
constexpr int kSteelRows = 6;

/// A project of windows with five labels each, of types with profile and steel rows.
void FillProject(Connection& connection) {
    InCommand(connection, [&] {
        for (int type = 1; type <= kTypes; ++type) {
            for (int row = 1; row <= kProfileRows + kSteelRows; ++row) {
                const std::string table = row <= kProfileRows ? "窗型材" : "窗型钢";
                connection.Execute("Insert into " + table + " (窗号,编号,名称,规格,数量,计算公式) values(" +
                                   std::to_string(type) + "," + std::to_string(row) + ",'推拉框(横)','XC-" +
                                   std::to_string(row) + "','2','(B-B1-60)/2+H1-" + std::to_string(row) +
                                   "')");
            }
        }
        bench::AddWindows(connection, kWindows, kTypes);
    });
}

void GatherThousandWindows(benchmark::State& state) {
    bench::ScratchStore store;
    FillProject(store.connection);
    const std::vector<DemandWindow> windows = ListDemandWindows(store.connection, "1");
    bench::ResetPeakMemory();
    const double before = bench::PeakMemory();
    for (auto _ : state) {
        state.PauseTiming();
        store.connection.Execute("Delete from 优化数据");
        state.ResumeTiming();
        GatherDemand(store.connection, windows);
    }
    state.counters["peakMiB"] = bench::PeakMemory() - before;
    state.counters["rows"] = store.connection.OpenCursor("Select count(*) from 优化数据").Field(0).Number();
}
BENCHMARK(GatherThousandWindows)->Unit(benchmark::kMillisecond);

void RunSql(sqlite3* database, const std::string& sql) {
    if (sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
}

/// The least any program must do: the rows that the gathering yields, one prepared statement, one
/// transaction, the same table on the same disk.
void InsertSameRowsBare(benchmark::State& state) {
    bench::ScratchStore store;
    FillProject(store.connection);
    GatherDemand(store.connection, ListDemandWindows(store.connection, "1"));
    Cursor rows = store.connection.OpenCursor("Select 编号,名称,规格,长度,数量 from 优化数据");

    const std::string file = store.file.string() + ".bare";
    std::filesystem::copy_file(store.file, file);
    sqlite3* database = nullptr;
    if (sqlite3_open(file.c_str(), &database) != SQLITE_OK) std::abort();
    RunSql(database, "PRAGMA synchronous=FULL");
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database, "INSERT INTO 优化数据 (编号,名称,规格,长度,数量) VALUES (?,?,?,?,?)", -1,
                       &insert, nullptr);
    for (auto _ : state) {
        state.PauseTiming();
        RunSql(database, "DELETE FROM 优化数据");
        state.ResumeTiming();
        RunSql(database, "BEGIN");
        for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
            for (const int column : {0, 3, 4}) {
                sqlite3_bind_int64(insert, column + 1,
                                   static_cast<sqlite3_int64>(rows.Field(column).Number()));
            }
            for (const int column : {1, 2}) {
                const std::string& text = rows.Field(column).TextView();
                sqlite3_bind_text(insert, column + 1, text.data(), static_cast<int>(text.size()),
                                  SQLITE_STATIC);
            }
            if (sqlite3_step(insert) != SQLITE_DONE) std::abort();
            sqlite3_reset(insert);
        }
        RunSql(database, "COMMIT");
    }
    sqlite3_finalize(insert);
    sqlite3_close(database);
    std::filesystem::remove(file);
    state.counters["rows"] = rows.RecordCount();
}
BENCHMARK(InsertSameRowsBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
