// Opening the window types with a large library, beside the same widgets filled with the same rows.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>

#include "design/screens/FrmDesign.h"
#include "scratch_store.h"
#include "session/app_state.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

constexpr int kSeries = 20;
constexpr int kTypesInASeries = 100;
constexpr int kButtons = 14;
constexpr QSize kSize(980, 600);

std::string SeriesName(int series) {
    return "系列" + std::to_string(series);
}
std::string TypeName(int series, int type) {
    return "窗型" + std::to_string(series) + "-" + std::to_string(1000 + type);
}

/// Opens the store of 2,000 types as the program's own, until the end of the benchmarks.
void OpenLibrary() {
    static bench::ScratchStore store;
    static bool isFilled = false;
    if (isFilled) return;
    isFilled = true;
    InCommand(store.connection, [] {
        Connection& connection = store.connection;
        connection.Execute("Insert into 门窗厂家 (编号,名称) values(1,'厂家')");
        int number = 0;
        for (int series = 1; series <= kSeries; ++series) {
            connection.Execute("Insert into 门窗系列 (厂家编号,编号,名称) values(1," +
                               std::to_string(series) + ",'" + SeriesName(series) + "')");
            for (int type = 0; type < kTypesInASeries; ++type) {
                connection.Execute("Insert into 门窗 (系列编号,编号,名称,图号) values(" +
                                   std::to_string(series) + "," + std::to_string(++number) + ",'" +
                                   TypeName(series, type) + "',1)");
            }
        }
    });
    App().mainConnection = std::make_unique<Connection>(store.file, StoreKind::Main);
    App().folder = std::filesystem::current_path();
}

void OpenWindowTypes(benchmark::State& state) {
    OpenLibrary();
    for (auto _ : state) {
        FrmDesign screen(nullptr);
        screen.show();
        QApplication::processEvents();
    }
    state.counters["types"] = kSeries * kTypesInASeries;
}
BENCHMARK(OpenWindowTypes)->Unit(benchmark::kMillisecond);

void FillSameWidgetsBare(benchmark::State& state) {
    for (auto _ : state) {
        const QIcon leaf(QStringLiteral(":/ui/design.svg"));
        const QIcon folder = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
        QDialog screen;
        auto* tree = new QTreeWidget(&screen);
        tree->setHeaderHidden(true);
        tree->setUniformRowHeights(true);
        auto* row = new QHBoxLayout(&screen);
        row->addWidget(tree);
        row->addWidget(new QWidget(&screen), 1);
        auto* column = new QVBoxLayout;
        for (int i = 0; i < kButtons; ++i)
            column->addWidget(new QPushButton(QStringLiteral("新建门窗厂家"), &screen));
        row->addLayout(column);
        const auto add = [](const QString& text, const QIcon& icon, QTreeWidgetItem* parent) {
            auto* item = new QTreeWidgetItem(QStringList(text));
            item->setIcon(0, icon);
            item->setData(0, Qt::UserRole, text);  // every row has its tag
            parent->addChild(item);
            return item;
        };
        QTreeWidgetItem* maker = add(QStringLiteral("厂家"), folder, tree->invisibleRootItem());
        for (int series = 1; series <= kSeries; ++series) {
            QTreeWidgetItem* branch = add(QString::fromStdString(SeriesName(series)), folder, maker);
            for (int type = 0; type < kTypesInASeries; ++type) {
                add(QString::fromStdString(TypeName(series, type)), leaf, branch);
            }
        }
        tree->expandItem(maker);
        screen.resize(kSize);
        screen.show();
        QApplication::processEvents();
    }
}
BENCHMARK(FillSameWidgetsBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
