// Window types to a workbook and back, beside the same cells written and read with the bare libraries.

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <xlsxwriter.h>
#include <zip.h>

#include <cstdlib>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "design/formula_export.h"
#include "design/formula_import.h"
#include "scratch_store.h"
#include "store/command_scope.h"
#include "store/table_writer.h"

namespace kalvane {
namespace {

constexpr int kTypes = 2000;
constexpr int kRowsOfEachClass = 5;
constexpr const char* kFile = "bench-formulas.xlsx";

FieldValue Text(const char* text) {
    return FieldValue(std::string(text));
}

/// Types with 20 rows each.
void FillTypes(Connection& connection) {
    InCommand(connection, [&] {
        TableWriter types(connection, "门窗");
        TableWriter profiles(connection, "窗型材");
        TableWriter steels(connection, "窗型钢");
        TableWriter panels(connection, "窗板材");
        TableWriter fittings(connection, "窗配件");
        for (std::int64_t type = 1; type <= kTypes; ++type) {
            const FieldValue number(type);
            types.AddRow(std::vector{FieldValue(std::int64_t{1}), number,
                                     FieldValue("窗型" + std::to_string(type)), FieldValue(), number});
            for (std::int64_t row = 1; row <= kRowsOfEachClass; ++row) {
                const FieldValue id(type * kRowsOfEachClass + row);
                const std::vector bar = {number,       id,        Text("框"),
                                         Text("GK60"), Text("2"), Text("(B-2*60+20)/2")};
                profiles.AddRow(bar);
                steels.AddRow(bar);
                panels.AddRow(std::vector{number, id, Text("白玻"), FieldValue(std::int64_t{2}),
                                          Text("B/2-60"), Text("H-120")});
                fittings.AddRow(std::vector{number, id, Text("锁"), Text("S-1"), Text("2"), Text("只")});
            }
        }
    });
}

/// The store with the types and their grid, made once.
struct Library {
    bench::ScratchStore store;
    std::vector<GridLine> grid = (FillTypes(store.connection), FormulaGrid(store.connection));
    ~Library() { std::filesystem::remove(kFile); }
};
Library& TheLibrary() {
    static Library library;
    return library;
}

void ExportTypes(benchmark::State& state) {
    Library& library = TheLibrary();
    for (auto _ : state) SaveFormulaGrid(FormulaGrid(library.store.connection), kFile);
    state.counters["rows"] = static_cast<double>(library.grid.size());
}
BENCHMARK(ExportTypes)->Unit(benchmark::kMillisecond);

void WriteSameCellsBare(benchmark::State& state) {
    const std::vector<GridLine>& grid = TheLibrary().grid;
    for (auto _ : state) {
        lxw_workbook* book = workbook_new(kFile);
        lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
        for (std::size_t row = 0; row < grid.size(); ++row) {
            for (std::size_t column = 0; column < kGridColumns; ++column) {
                if (grid[row][column].empty()) continue;
                worksheet_write_string(sheet, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(column),
                                       grid[row][column].c_str(), nullptr);
            }
        }
        if (workbook_close(book) != LXW_NO_ERROR) std::abort();
    }
}
BENCHMARK(WriteSameCellsBare)->Unit(benchmark::kMillisecond);

void ImportTypes(benchmark::State& state) {
    SaveFormulaGrid(TheLibrary().grid, kFile);
    for (auto _ : state) {
        state.PauseTiming();
        auto store = std::make_unique<bench::ScratchStore>();
        state.ResumeTiming();
        ImportedFormulas imported;
        ImportFormulas(store->connection, ReadFormulaSheet(kFile), "1", imported);
        if (imported.types != kTypes) std::abort();
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(ImportTypes)->Unit(benchmark::kMillisecond);

/// What stands before an import, so that the operator may leave it.
void DryRunOfImport(benchmark::State& state) {
    SaveFormulaGrid(TheLibrary().grid, kFile);
    const SheetTexts sheet = ReadFormulaSheet(kFile);
    for (auto _ : state) {
        benchmark::DoNotOptimize(PreviewImport(TheLibrary().store.connection, sheet));
    }
}
BENCHMARK(DryRunOfImport)->Unit(benchmark::kMillisecond);

pugi::xml_document BarePart(zip_t* archive, const char* name) {
    zip_stat_t entry;
    if (zip_stat(archive, name, 0, &entry) != 0) std::abort();
    std::string text(entry.size, '\0');
    zip_file_t* stream = zip_fopen(archive, name, 0);
    zip_fread(stream, text.data(), text.size());
    zip_fclose(stream);
    pugi::xml_document document;
    document.load_buffer(text.data(), text.size());
    return document;
}

/// The cells of the file by the libraries alone, and each row inserted by a prepared statement.
void ReadAndInsertBare(benchmark::State& state) {
    SaveFormulaGrid(TheLibrary().grid, kFile);
    for (auto _ : state) {
        state.PauseTiming();
        auto store = std::make_unique<bench::ScratchStore>();
        sqlite3* database = nullptr;
        if (sqlite3_open(store->file.c_str(), &database) != SQLITE_OK) std::abort();
        state.ResumeTiming();

        zip_t* archive = zip_open(kFile, ZIP_RDONLY, nullptr);
        const pugi::xml_document strings = BarePart(archive, "xl/sharedStrings.xml");
        const pugi::xml_document sheet = BarePart(archive, "xl/worksheets/sheet1.xml");
        std::vector<std::string> texts;
        for (const pugi::xml_node& item : strings.child("sst")) texts.emplace_back(item.child_value("t"));
        sqlite3_exec(database, "BEGIN", nullptr, nullptr, nullptr);
        sqlite3_stmt* insert = nullptr;
        sqlite3_prepare_v2(database, "INSERT INTO \"窗型材\" VALUES(1,NULL,?,?,?,?)", -1, &insert, nullptr);
        for (const pugi::xml_node& row : sheet.child("worksheet").child("sheetData")) {
            sqlite3_reset(insert);
            sqlite3_clear_bindings(insert);
            int column = 0;
            for (const pugi::xml_node& cell : row) {
                const char* value = cell.child_value("v");
                if (cell.attribute("t").value() == std::string("s")) {
                    value = texts[static_cast<std::size_t>(std::atoi(value))].c_str();
                }
                sqlite3_bind_text(insert, ++column, value, -1, SQLITE_TRANSIENT);
            }
            sqlite3_step(insert);
        }
        sqlite3_finalize(insert);
        sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
        zip_discard(archive);

        state.PauseTiming();
        sqlite3_close(database);
        store.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(ReadAndInsertBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
