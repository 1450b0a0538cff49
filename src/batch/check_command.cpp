#include "batch/check_command.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "batch/locked_store.h"
#include "design/type_check.h"

namespace kalvane {

CheckCommand::CheckCommand(CLI::App& application) {
    CLI::App* check =
        application.add_subcommand("check", "codes, labels and brackets that formulas of window types miss");
    check->add_option("--folder", folder_, "folder of the stores")->capture_default_str();
    check->callback([this] { Run(); });
}

void CheckCommand::Run() const {
    LockedStore store(folder_, StoreKind::Main);
    for (const auto& [type, finding] : FindingsOfAllTypes(store.Get())) {
        std::cout << type << '\t' << FormulaTableOf(finding.materialClass).name << '\t' << finding.row + 1
                  << '\t' << finding.text << '\n';
    }
}

}  // namespace kalvane
