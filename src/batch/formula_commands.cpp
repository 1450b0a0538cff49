#include "batch/formula_commands.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "batch/locked_store.h"
#include "design/formula_export.h"
#include "design/formula_import.h"
#include "numeric/error.h"

namespace kalvane {
namespace {

/// The number of the series of that name; throws Error when there is none, or more than one.
std::string SeriesNamed(Connection& connection, const std::string& name) {
    std::string number;
    for (Cursor row = connection.OpenCursor("Select * from 门窗系列"); !row.Eof(); row.MoveNext()) {
        if (row.Field("名称").TextOrEmpty() != name) continue;
        if (!number.empty()) throw Error("有几个门窗系列名为“" + name + "”，请先改名。");
        number = row.Field("编号").TextOrEmpty();
    }
    if (number.empty()) throw Error("没有名为“" + name + "”的门窗系列。");
    return number;
}

}  // namespace

FormulaCommands::FormulaCommands(CLI::App& application) {
    CLI::App* command =
        application.add_subcommand("formulas", "window types and their formulas, to and from a spreadsheet");
    command->add_option("--folder", folder_, "folder of the stores")->capture_default_str();
    CLI::Option* output =
        command->add_option("--export", export_, ".xlsx file that is written; - prints the cells");
    CLI::Option* input =
        command->add_option("--import", import_, ".xls or .xlsx file that is read")->excludes(output);
    CLI::Option* series = command->add_option("--series", series_, "name of the series it goes into");
    CLI::Option* dryRun = command->add_flag("--dry-run", isDryRun_, "only say what the import would do");
    series->needs(input);
    input->needs(series);
    dryRun->needs(input);
    command->callback([this] { Run(); });
}

void FormulaCommands::Run() const {
    if (!import_.empty()) return Import();
    if (!export_.empty()) return Export();
    throw Error("请给出 --export 或 --import。");
}

void FormulaCommands::Export() const {
    LockedStore store(folder_, StoreKind::Main);
    const std::vector<GridLine> grid = FormulaGrid(store.Get());
    if (export_ != "-") return SaveFormulaGrid(grid, export_);
    for (const GridLine& line : grid) {
        std::cout << line[0] << '\t' << line[1] << '\t' << line[2] << '\t' << line[3] << '\n';
    }
}

void FormulaCommands::Import() const {
    const SheetTexts sheet = ReadFormulaSheet(import_);
    LockedStore store(folder_, StoreKind::Main);
    const std::string series = SeriesNamed(store.Get(), series_);
    if (isDryRun_) {
        std::cout << PreviewText(PreviewImport(store.Get(), sheet)) << '\n';
        return;
    }
    ImportedFormulas imported;
    ImportFormulas(store.Get(), sheet, series, imported);
    std::cout << imported.types << '\t' << imported.rows << '\n';
}

}  // namespace kalvane
