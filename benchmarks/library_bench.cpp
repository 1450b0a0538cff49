#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>
#include <vector>

#include "drawing/drawing_library.h"
#include "full_drawing.h"
#include "scratch_store.h"

namespace kalvane {
namespace {

/// A library with the largest drawing between two others.
void FillLibrary(Connection& connection, const CPictire& picture) {
    for (const char* number : {"1", "2", "3"}) SaveNewDrawing(connection, number, "图", picture);
}

void LoadFullDrawing(benchmark::State& state) {
    bench::SilentNotice notice;
    bench::ScratchStore store;
    FillLibrary(store.connection, bench::FullDrawing(notice));
    CPictire picture(notice);
    for (auto _ : state) {
        picture.ClearData();
        picture.OpenFileEX(store.connection, "2");
    }
    state.counters["arcs"] = picture.Arcs().Count();
}
BENCHMARK(LoadFullDrawing)->Unit(benchmark::kMicrosecond);

/// The least any program must do: the same rows of the same file into arrays, by prepared statements.
void ReadSameRowsBare(benchmark::State& state) {
    bench::SilentNotice notice;
    bench::ScratchStore store;
    FillLibrary(store.connection, bench::FullDrawing(notice));
    sqlite3* database = nullptr;
    if (sqlite3_open(store.file.c_str(), &database) != SQLITE_OK) std::abort();
    std::vector<sqlite3_stmt*> selects;
    for (const char* sql :
         {"SELECT X1,Y1,X2,Y2 FROM \"Line\" WHERE Bn=?", "SELECT x1,y1,x2,y2 FROM \"Rectangle\" WHERE Bn=?",
          "SELECT X1,Y1,X2,Y2 FROM \"Arrow\" WHERE Bn=?", "SELECT X1,Y1,X2,Y2,X3,Y3 FROM \"Dim\" WHERE Bn=?",
          "SELECT X1,Y1,Chars FROM \"Strings\" WHERE Bn=?",
          "SELECT x1,y1,x2,y2,x3,y3 FROM \"arc\" WHERE Bn=?"}) {
        if (sqlite3_prepare_v2(database, sql, -1, &selects.emplace_back(), nullptr) != SQLITE_OK)
            std::abort();
    }
    std::vector<float> numbers;
    std::vector<std::string> texts;
    for (auto _ : state) {
        numbers.clear();
        texts.clear();
        for (sqlite3_stmt* select : selects) {
            sqlite3_bind_int(select, 1, 2);
            const int columns = sqlite3_column_count(select);
            while (sqlite3_step(select) == SQLITE_ROW) {
                for (int column = 0; column < columns; ++column) {
                    if (sqlite3_column_type(select, column) == SQLITE_TEXT) {
                        texts.emplace_back(
                            reinterpret_cast<const char*>(sqlite3_column_text(select, column)));
                    } else {
                        numbers.push_back(static_cast<float>(sqlite3_column_double(select, column)));
                    }
                }
            }
            sqlite3_reset(select);
        }
    }
    for (sqlite3_stmt* select : selects) sqlite3_finalize(select);
    sqlite3_close(database);
    state.counters["arcs"] = static_cast<double>(numbers.size() - 361 * (3 * 4 + 6 + 2)) / 6;
}
BENCHMARK(ReadSameRowsBare)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kalvane
