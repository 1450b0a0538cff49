// Opening a large catalogue, beside the same widgets filled with the same rows.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "catalogue/screens/frmDatabase.h"
#include "scratch_store.h"
#include "session/app_state.h"
#include "store/command_scope.h"
#include "store/table_writer.h"
#include "ui/node_tree.h"

namespace kalvane {
namespace {

constexpr int kMaterials = 20000;
constexpr int kColumns = 9;
constexpr int kHidden = 2;
constexpr int kButtons = 13;
constexpr QSize kSize(1060, 640);

/// Opens a store with one series of all materials as the program's own, until the end of the run.
void OpenCatalogue() {
    static bench::ScratchStore store;
    static const bool isFilled = [] {
        InCommand(store.connection, [] {
            store.connection.Execute("Insert into 材料厂家 values(1,'型厂','-','-','-','1')");
            store.connection.Execute("Insert into 型材系列 values(1,1,'系列')");
            TableWriter writer(store.connection, "型材");
            for (std::int64_t row = 1; row <= kMaterials; ++row) {
                writer.AddRow(std::vector{
                    FieldValue(std::int64_t{1}), FieldValue(row), FieldValue(std::string("框")),
                    FieldValue("GK" + std::to_string(row)), FieldValue(std::int64_t{6000}), FieldValue(2.5),
                    FieldValue(std::string("白")), FieldValue(1.25), FieldValue(std::int64_t{9800})});
            }
        });
        return true;
    }();
    if (!isFilled) std::abort();
    App().mainConnection = std::make_unique<Connection>(store.file, StoreKind::Main);
    App().folder = std::filesystem::current_path();
}

void OpenCatalogueScreen(benchmark::State& state) {
    OpenCatalogue();
    for (auto _ : state) {
        frmDatabase screen(nullptr);
        auto* tree = screen.findChild<NodeTree*>();
        tree->setCurrentItem(tree->Find("51"));
        screen.show();
        QApplication::processEvents();
    }
    state.counters["materials"] = kMaterials;
}
BENCHMARK(OpenCatalogueScreen)->Unit(benchmark::kMillisecond);

void FillCatalogueWidgetsBare(benchmark::State& state) {
    for (auto _ : state) {
        QDialog screen;
        auto* row = new QHBoxLayout(&screen);
        auto* tree = new QTreeWidget(&screen);
        tree->setHeaderHidden(true);
        auto* maker = new QTreeWidgetItem(tree, {QStringLiteral("型厂")});
        new QTreeWidgetItem(maker, {QStringLiteral("系列")});
        row->addWidget(tree);
        auto* list = new QTreeWidget(&screen);
        list->setUniformRowHeights(true);
        list->setRootIsDecorated(false);
        list->setColumnCount(kColumns);
        for (int column = kColumns - kHidden; column < kColumns; ++column)
            list->setColumnHidden(column, true);
        auto* middle = new QVBoxLayout;
        middle->addWidget(new QLineEdit(&screen));
        middle->addWidget(list);
        row->addLayout(middle);
        auto* buttons = new QVBoxLayout;
        for (int i = 0; i < kButtons; ++i) {
            buttons->addWidget(new QPushButton(QStringLiteral("添加"), &screen));
        }
        row->addLayout(buttons);
        QList<QTreeWidgetItem*> items;
        for (int i = 1; i <= kMaterials; ++i) {
            items << new QTreeWidgetItem({QStringLiteral("框"), QStringLiteral("GK%1").arg(i),
                                          QStringLiteral("6000"), QStringLiteral("2.5"), QStringLiteral("白"),
                                          QStringLiteral("1.25"), QStringLiteral("9800"), QStringLiteral("1"),
                                          QString::number(i)});
        }
        list->addTopLevelItems(items);
        screen.resize(kSize);
        screen.show();
        QApplication::processEvents();
    }
}
BENCHMARK(FillCatalogueWidgetsBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
