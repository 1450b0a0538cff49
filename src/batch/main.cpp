#include <CLI/CLI.hpp>
#include <iostream>

#include "batch/check_command.h"
#include "batch/commands.h"
#include "batch/formula_commands.h"
#include "batch/project_commands.h"
#include "batch/sheet_commands.h"
#include "batch/stock_commands.h"
#include "batch/tally_commands.h"
#include "batch/wind_commands.h"
#include "numeric/error.h"

using namespace kalvane;

namespace {

void AddFolder(CLI::App& command, std::string& folder) {
    command.add_option("--folder", folder, "folder of the stores")->capture_default_str();
}

void AddRunOptions(CLI::App& command, RunOptions& options) {
    command.add_option("--scheme", options.scheme, "1 practical optimiser, 2 linear optimiser")
        ->check(CLI::Range(1, 2))
        ->capture_default_str();
    command.add_option("--clc", options.CLC, "stock length of a bar, mm");
    command.add_option("--ltc", options.LTC, "end allowance, mm");
    command.add_option("--ckk", options.CKK, "kerf, mm");
    command.add_option("--yhbl", options.YHBL, "ratio at which the linear optimiser stops");
    command.add_option("--nodes", options.NODES, "pieces the linear optimiser searches at a time");
}

/// A formula may begin with a minus: as the last word of `eval` it is never an option.
std::vector<std::string> Arguments(int argc, char* argv[]) {
    std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() > 1 && words.front() == "eval" && words.back().starts_with("-") &&
        words.back() != "--help" && words.back() != "-h" && words[words.size() - 2] != "--") {
        words.insert(words.end() - 1, "--");
    }
    std::reverse(words.begin(), words.end());  // the order in which the parser takes them
    return words;
}

int Run(int argc, char* argv[]) {
    CLI::App application(
        "Kalvane without a screen: formulas, bills of material, cutting plans, windows and contracts, "
        "material "
        "and settlement, component sheets, wind-pressure checks and the warehouse",
        "kalvane-batch");
    application.require_subcommand(1);
    const WindCommands wind(application);
    const ProjectCommands windows(application);
    const StockCommands stock(application);
    const CheckCommand check(application);
    const FormulaCommands formulas(application);
    const TallyCommands tally(application);
    const SheetCommands sheets(application);

    std::string formula;
    std::vector<std::string> labels;
    CLI::App* eval = application.add_subcommand("eval", "evaluate a formula");
    eval->add_option("--label", labels, "NAME=VALUE; may be given several times")
        ->allow_extra_args(false)
        ->take_all();
    eval->add_option("formula", formula, "formula text")->required();
    eval->callback([&] { EvalCommand(formula, labels); });

    bool isWhole = true;
    std::string folder = ".";
    std::string project;
    RunOptions options;
    CLI::App* expand = application.add_subcommand("expand", "bill of material of each window of a project");
    AddFolder(*expand, folder);
    expand->add_option("--project", project, "name of the project")->required();
    expand->callback([&] { isWhole = FolderCommands(folder).Expand(project); });

    CLI::App* demand = application.add_subcommand("demand", "cut demand of a project");
    AddFolder(*demand, folder);
    demand->add_option("--project", project, "name of the project")->required();
    demand->callback([&] { FolderCommands(folder).Demand(project); });

    CLI::App* plan = application.add_subcommand("plan", "cutting plan of a project");
    AddFolder(*plan, folder);
    plan->add_option("--project", project, "name of the project")->required();
    AddRunOptions(*plan, options);
    plan->callback([&] { isWhole = FolderCommands(folder).Plan(project, options); });

    std::string demandFile;
    std::string name;
    CLI::App* cut = application.add_subcommand("cut", "cutting plan of a .DDD file");
    AddFolder(*cut, folder);
    cut->add_option("--demand", demandFile, ".DDD file")->required();
    cut->add_option("--name", name, "name of the material");
    AddRunOptions(*cut, options);
    cut->callback([&] { isWhole = FolderCommands(folder).Cut(demandFile, name, options); });

    try {
        application.parse(Arguments(argc, argv));
    } catch (const CLI::CallForHelp& help) {
        return application.exit(help);
    }
    std::cout.flush();
    if (!std::cout) throw FileError("结果不能写出。");
    return isWhole ? 0 : 1;
}

}  // namespace

int main(int argc, char* argv[]) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
