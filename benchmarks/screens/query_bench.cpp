#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QApplication>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>

#include "scratch_store.h"
#include "session/app_state.h"
#include "store/command_scope.h"
#include "store/table_writer.h"
#include "ui/report_list.h"
#include "warehouse/screens/FrmQuery.h"

namespace kalvane {
namespace {

constexpr int kNotes = 200'000;
constexpr int kColumns = 7;

/// The warehouse of the program, with that many goods-in notes.
const std::filesystem::path& FilledStock() {
    static bench::ScratchStore store(StoreKind::Stock);
    static const bool filled = [] {
        InCommand(store.connection, [] {
            TableWriter writer(store.connection, "入库单");
            for (int i = 1; i <= kNotes; ++i) {
                writer.AddRow(std::vector<FieldValue>{
                    FieldValue(static_cast<std::int64_t>(i)), FieldValue(std::string("大连实德")),
                    FieldValue(1450.5), FieldValue(std::string("生产用料")),
                    FieldValue("P-" + std::to_string(i)), FieldValue(std::string("王")),
                    FieldValue(static_cast<std::int64_t>(45000 + i % 300))});
            }
        });
        return true;
    }();
    (void)filled;
    return store.file;
}

/// Presses "全部" and waits for the first rows on the screen, or for all of them.
void Query(benchmark::State& state, bool all) {
    App().stockConnection = std::make_unique<Connection>(FilledStock(), StoreKind::Stock);
    FrmQuery query(nullptr);
    query.show();
    auto* list = query.findChild<ReportList*>(QStringLiteral("LVW"));
    auto* tabs = query.findChild<QTabBar*>(QStringLiteral("TabStrip1"));
    for (auto _ : state) {
        state.PauseTiming();
        tabs->setCurrentIndex(1);
        tabs->setCurrentIndex(0);
        QApplication::processEvents();
        state.ResumeTiming();
        query.findChild<QPushButton*>(QStringLiteral("CmdAll"))->click();
        list->viewport()->repaint();
        while (all && list->RowCount() < kNotes) QApplication::processEvents();
        if (all) list->viewport()->repaint();
    }
    state.counters["rows"] = list->RowCount();
    App().stockConnection.reset();
}
void QueryFirstRows(benchmark::State& state) {
    Query(state, false);
}
BENCHMARK(QueryFirstRows)->Unit(benchmark::kMillisecond);
void QueryAllRows(benchmark::State& state) {
    Query(state, true);
}
BENCHMARK(QueryAllRows)->Unit(benchmark::kMillisecond);

/// The least any program must do: one select, and its texts put into a list of the same kind at once.
void SelectSameRowsBare(benchmark::State& state) {
    sqlite3* database = nullptr;
    if (sqlite3_open(FilledStock().c_str(), &database) != SQLITE_OK) std::abort();
    QTreeWidget list;
    list.setUniformRowHeights(true);
    list.setColumnCount(kColumns);
    list.show();
    for (auto _ : state) {
        state.PauseTiming();
        list.clear();
        QApplication::processEvents();
        state.ResumeTiming();
        sqlite3_stmt* select = nullptr;
        sqlite3_prepare_v2(database, "SELECT * FROM 入库单", -1, &select, nullptr);
        QList<QTreeWidgetItem*> items;
        while (sqlite3_step(select) == SQLITE_ROW) {
            QStringList texts;
            for (int i = 0; i < kColumns; ++i) {
                texts << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(select, i)));
            }
            items << new QTreeWidgetItem(texts);
        }
        sqlite3_finalize(select);
        list.addTopLevelItems(items);
        list.viewport()->repaint();
    }
    sqlite3_close(database);
    state.counters["rows"] = list.topLevelItemCount();
}
BENCHMARK(SelectSameRowsBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
