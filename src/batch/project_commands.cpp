#include "batch/project_commands.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>
#include <iostream>

#include "batch/locked_store.h"
#include "batch/project_choice.h"
#include "numeric/error.h"
#include "page/paint_report.h"
#include "project/contract.h"
#include "project/project_windows.h"
#include "ui/report_sheet.h"
#include "ui/text.h"

namespace kalvane {
namespace {

/// Writes a report as PDF; no window is shown.
void WritePdf(const Report& report, const std::string& title, const std::string& file) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    std::string name = "kalvane-batch";
    char* argv[] = {name.data(), nullptr};
    const QGuiApplication application(argc, argv);
    PageDocument(ToQt(title), kReportSheet, [&](PageTarget& page) {
        PaintReport(page, report);
    }).WritePdf(file);
}

}  // namespace

ProjectCommands::ProjectCommands(CLI::App& application) {
    Add(application, "windows", "the windows of a project, nine columns each")->callback([this] {
        Windows();
    });
    CLI::App* contract = Add(application, "contract", "the saved contract of a project as PDF");
    contract->add_option("--pdf", pdf_, "file to write")->required();
    contract->callback([this] { Contract(); });
}

CLI::App* ProjectCommands::Add(CLI::App& application, const char* name, const char* description) {
    CLI::App* command = application.add_subcommand(name, description);
    command->add_option("--folder", folder_, "folder of the stores")->capture_default_str();
    command->add_option("--project", project_, "name of the project")->required();
    return command;
}

void ProjectCommands::Windows() const {
    LockedStore store(folder_, StoreKind::Main);
    for (const WindowEntry& window : ListWindows(store.Get(), ProjectNumber(store.Get(), project_))) {
        std::cout << window.name << '\t' << window.position << '\t' << window.width << '\t' << window.height
                  << '\t' << window.count << '\t' << window.note << '\t' << window.projectNumber << '\t'
                  << window.typeNumber << '\t' << window.number << '\n';
    }
}

void ProjectCommands::Contract() const {
    LockedStore store(folder_, StoreKind::Main);
    const std::string number = ProjectNumber(store.Get(), project_);
    if (!LoadContract(store.Get(), number)) throw Error("工程“" + project_ + "”没有存储的合同。");
    WritePdf(ContractReport(store.Get(), number), "工程合同 " + project_, pdf_);
}

}  // namespace kalvane
