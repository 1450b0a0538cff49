#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <array>
#include <string>
#include <vector>

#include "output/material_summary.h"
#include "output/tally.h"
#include "peak_memory.h"
#include "scratch_store.h"
#include "store/command_scope.h"
#include "window_rows.h"

namespace kalvane {
namespace {

constexpr int kWindows = 5000;
constexpr int kTypes = 12;

/// How many formula rows of a class a type has; 60 in all.
struct ClassRows {
    const char* table;
    const char* columns;
    const char* formulas;
    int count;
};
constexpr std::array kClassRows = {ClassRows{"窗型材", "规格,数量,计算公式", "'2','(B-B1-60)/2+H1-", 26},
                                   ClassRows{"窗型钢", "规格,数量,计算公式", "'2','(B-B1-80)/2+H1-", 14},
                                   ClassRows{"窗配件", "规格,单位,数量", "'个','2+", 14},
                                   ClassRows{"窗板材", "长公式,数量,宽公式", "2,'(H-H1)-", 6}};

/// A project of windows with five labels each, of types with 60 formula rows.
void FillProject(Connection& connection) {
    InCommand(connection, [&] {
        for (int type = 1; type <= kTypes; ++type) {
            for (const ClassRows& rows : kClassRows) {
                for (int row = 1; row <= rows.count; ++row) {
                    const std::string number = std::to_string(row);
                    connection.Execute(std::string("Insert into ") + rows.table + " (窗号,编号,名称," +
                                       rows.columns + ") values(" + std::to_string(type) + "," + number +
                                       ",'推拉框(横)" + number + "','B-" + number + "'," + rows.formulas +
                                       number + "')");
                }
            }
        }
        bench::AddWindows(connection, kWindows, kTypes);
    });
}

class SilentNotice final : public Notice {
  public:
    void Show(const std::string&, const std::string&, NoticeIcon) override {}
};

void TallyFiveThousandWindows(benchmark::State& state) {
    bench::ScratchStore store;
    FillProject(store.connection);
    const std::vector<WindowEntry> windows = ListWindows(store.connection, "1");
    SilentNotice notice;
    FieldSlots slots;
    TallyState totals;
    bench::ResetPeakMemory();
    const double before = bench::PeakMemory();
    for (auto _ : state) {
        GatherTallies(store.connection, windows, notice);
        BuildMaterialSummary(store.connection, {}, slots, totals);
    }
    state.counters["peakMiB"] = bench::PeakMemory() - before;
    state.counters["rows"] = store.connection.OpenCursor("Select count(*) from OutXC").Field(0).Number();
}
BENCHMARK(TallyFiveThousandWindows)->Unit(benchmark::kMillisecond)->Iterations(3);

void RunSql(sqlite3* database, const std::string& sql) {
    if (sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
}

/// Copies the rows that the gathering yielded into an emptied table, one prepared statement for each table.
void InsertRows(sqlite3* database, const std::string& table, const std::string& columns, Cursor& rows) {
    std::string marks = "?";
    for (int column = 1; column < rows.FieldCount(); ++column) marks += ",?";
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database,
                       ("INSERT INTO " + table + " (" + columns + ") VALUES (" + marks + ")").c_str(), -1,
                       &insert, nullptr);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        for (int column = 0; column < rows.FieldCount(); ++column) {
            const std::string& text = rows.Field(column).TextView();
            if (!text.empty()) {
                sqlite3_bind_text(insert, column + 1, text.data(), static_cast<int>(text.size()),
                                  SQLITE_STATIC);
            } else {
                sqlite3_bind_double(insert, column + 1, rows.Field(column).Number());
            }
        }
        if (sqlite3_step(insert) != SQLITE_DONE) std::abort();
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
}

/// The least any program must do: the rows that the gathering yields in one transaction, the same tables on
/// the same disk, and the same grouping.
void InsertAndGroupSameRowsBare(benchmark::State& state) {
    const std::array<std::array<const char*, 3>, 4> tables = {
        {{"OutXC", "名称,规格,长度,数量", "SELECT 规格,sum(长度*数量) FROM OutXC GROUP BY 规格"},
         {"OutXG", "名称,规格,长度,数量", "SELECT 规格,sum(长度*数量) FROM OutXG GROUP BY 规格"},
         {"OutPJ", "名称,规格,数量,单位", "SELECT 规格,sum(数量) FROM OutPJ GROUP BY 规格"},
         {"OutPC", "名称,长,宽,数量", "SELECT 名称,sum(长*宽*数量/1000000) FROM OutPC GROUP BY 名称"}}};
    bench::ScratchStore store;
    FillProject(store.connection);
    SilentNotice notice;
    GatherTallies(store.connection, ListWindows(store.connection, "1"), notice);
    std::vector<Cursor> rows;
    for (const auto& [table, columns, grouping] : tables) {
        rows.push_back(store.connection.OpenCursor(std::string("Select ") + columns + " from " + table));
    }
    const std::string file = store.file.string() + ".bare";
    std::filesystem::copy_file(store.file, file);
    sqlite3* database = nullptr;
    if (sqlite3_open(file.c_str(), &database) != SQLITE_OK) std::abort();
    RunSql(database, "PRAGMA synchronous=FULL");
    for (auto _ : state) {
        RunSql(database, "BEGIN");
        for (const auto& [table, columns, grouping] : tables)
            RunSql(database, std::string("DELETE FROM ") + table);
        for (std::size_t i = 0; i < tables.size(); ++i)
            InsertRows(database, tables[i][0], tables[i][1], rows[i]);
        RunSql(database, "COMMIT");
        for (const auto& [table, columns, grouping] : tables) RunSql(database, grouping);
    }
    sqlite3_close(database);
    std::filesystem::remove(file);
}
BENCHMARK(InsertAndGroupSameRowsBare)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace kalvane
