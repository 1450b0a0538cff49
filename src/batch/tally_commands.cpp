#include "batch/tally_commands.h"

#include <CLI/CLI.hpp>
#include <ctime>
#include <iostream>
#include <span>

#include "batch/line_notice.h"
#include "batch/locked_store.h"
#include "batch/project_choice.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "output/gathering_record.h"
#include "output/material_summary.h"
#include "output/settlement.h"
#include "output/tally_check.h"
#include "output/tally_reports.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

constexpr const char* kTallyQuery = "Select BN,名称,规格,单价,DW,金额,数量 from OutTJ order by BN";

void PrintRow(std::span<const std::string> fields) {
    const char* separator = "";
    for (const std::string& field : fields) {
        std::cout << separator << field;
        separator = "\t";
    }
    std::cout << '\n';
}

void PrintRows(Connection& connection, const char* sql) {
    for (const std::vector<std::string>& row : TextRows(connection.OpenCursor(sql))) PrintRow(row);
}

/// The texts between commas, of which there must be `count`.
std::vector<std::string> Parts(std::string_view text, std::size_t count, const char* option) {
    std::vector<std::string> parts;
    for (std::string_view rest = text; parts.size() < count && (!rest.empty() || parts.empty());) {
        parts.emplace_back(TakeUpTo(rest, ","));
        if (parts.size() == count && !rest.empty()) parts.clear();
    }
    if (parts.size() == count) return parts;
    throw Error("“" + std::string(option) + " " + std::string(text) + "”应是用逗号分开的 " +
                std::to_string(count) + " 个数。");
}

std::string TimeText() {
    const std::time_t now = std::time(nullptr);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", std::localtime(&now));
    return text;
}

OutputView ViewNamed(const std::string& name) {
    if (name == "CmdOut1") return OutputView::CmdOut1;
    if (name == "cmdOut2") return OutputView::cmdOut2;
    if (name == "cmdOut3") return OutputView::cmdOut3;
    if (name == "cmdOutTJB") return OutputView::cmdOutTJB;
    return OutputView::cmdOutZJB;
}

}  // namespace

TallyCommands::TallyCommands(CLI::App& application) {
    CLI::App* tally = Add(application, "tally", "material of a project, raw or priced");
    tally->add_option("--view", view_, "raw, summary, detail, labels or fees")
        ->required()
        ->check(CLI::IsMember({"raw", "summary", "detail", "labels", "fees"}));
    tally->add_option("--classes", classes_, "1 or 0 for each of profile, steel, panel, fitting")
        ->capture_default_str();
    tally->add_option("--fees", fees_, "labour, tax, transport, other, each of a square metre");
    tally->callback([this] { Tally(); });

    CLI::App* settle = Add(application, "settle", "settlement of a project's doors and windows");
    settle->add_option("--prices", prices_, "of a square metre of doors, and of windows")->required();
    settle->callback([this] { Settle(); });

    CLI::App* output = Add(application, "output", "one of the five files of material and settlement");
    output->add_option("--view", view_, "CmdOut1, cmdOut2, cmdOut3, cmdOutTJB or cmdOutZJB")
        ->required()
        ->check(CLI::IsMember({"CmdOut1", "cmdOut2", "cmdOut3", "cmdOutTJB", "cmdOutZJB"}));
    output->add_option("--classes", classes_, "as for tally")->capture_default_str();
    output->add_option("--prices", prices_, "settles first; without it the last settlement is put out");
    output->add_option("--to", to_, "file, .txt or .xlsx; without it the lines are printed");
    output->callback([this] { Output(); });
}

CLI::App* TallyCommands::Add(CLI::App& application, const char* name, const char* description) {
    CLI::App* command = application.add_subcommand(name, description);
    command->add_option("--folder", folder_, "folder of the stores")->capture_default_str();
    command->add_option("--project", project_, "name of the project")->required();
    command->add_option("--windows", windows_, "places in the list of windows, such as 1,3; all if left out");
    return command;
}

ClassChoice TallyCommands::Classes() const {
    if (classes_.size() != 4 || classes_.find_first_not_of("01") != std::string::npos) {
        throw Error("“--classes " + classes_ + "”应是四个 0 或 1，依次为型材、型钢、板材、配件。");
    }
    return {classes_[0] == '1', classes_[1] == '1', classes_[2] == '1', classes_[3] == '1'};
}

std::vector<WindowEntry> TallyCommands::Windows(Connection& connection) const {
    return ChosenWindows(connection, project_, windows_);
}

void TallyCommands::Gather(Connection& connection) const {
    LineNotice notice;
    GatherAndRecord(connection, project_, Windows(connection), TimeText(), notice);
}

std::vector<std::string> TallyCommands::Note(Connection& connection, TallyView view) const {
    return PriceNote(connection, CheckTally(connection, Classes(), view), view, Windows(connection));
}

void TallyCommands::FillSettlementOf(Connection& connection) const {
    const std::vector<std::string> prices = Parts(prices_, 2, "--prices");
    ClearSettlement(connection);
    FillSettlement(connection, Windows(connection), {Val(prices[0]), Val(prices[1])});
}

void TallyCommands::PrintRaw(Connection& connection) const {
    const std::pair<const char*, const char*> tables[] = {{"OutXC", "Select 名称,规格,长度,数量 from OutXC"},
                                                          {"OutXG", "Select 名称,规格,长度,数量 from OutXG"},
                                                          {"OutPJ", "Select 名称,规格,数量,单位 from OutPJ"},
                                                          {"OutPC", "Select 名称,长,宽,数量 from OutPC"}};
    for (const auto& [table, sql] : tables) {
        for (std::vector<std::string>& row : TextRows(connection.OpenCursor(sql))) {
            row.insert(row.begin(), table);
            PrintRow(row);
        }
    }
}

void TallyCommands::PrintLabels(Connection& connection) const {
    FieldSlots slots;
    TallyState tally;
    BuildMaterialSummary(connection, Classes(), slots, tally);
    SetMaterialLabels(tally, Classes(), {});
    std::cout << tally.label10 << '\n' << tally.label12 << '\n' << tally.label14 << '\n';
}

void TallyCommands::PrintFees(Connection& connection) const {
    const std::vector<std::string> prices = Parts(fees_, 4, "--fees");
    FieldSlots slots;
    TallyState tally;
    BuildMaterialSummary(connection, Classes(), slots, tally);
    for (std::size_t i = 0; i < prices.size(); ++i) slots[i] = prices[i];
    const OrderFees fees = WorkOutFees(connection, Windows(connection), slots);
    for (const double fee : fees.fees) std::cout << ShortText(fee) << '\n';
    std::cout << ShortText(fees.total) << '\n';
}

void TallyCommands::Tally() const {
    LockedStore store(folder_, StoreKind::Main);
    Connection& connection = store.Get();
    FieldSlots slots;
    TallyState tally;
    Gather(connection);
    if (view_ == "raw") {
        PrintRaw(connection);
    } else if (view_ == "labels") {
        PrintLabels(connection);
    } else if (view_ == "fees") {
        PrintFees(connection);
    } else {
        const OutputView view = view_ == "summary" ? OutputView::CmdOut1 : OutputView::cmdOut3;
        RebuildForOutput(connection, view, Classes(), slots, tally);
        PrintRows(connection, kTallyQuery);
        for (const std::string& line : Note(connection, *TallyViewOf(view))) std::cerr << line << '\n';
    }
}

void TallyCommands::Settle() const {
    LockedStore store(folder_, StoreKind::Main);
    FillSettlementOf(store.Get());
    PrintRows(store.Get(), "Select XH,LX,Width,Height,Count,Mj,DJ,JE,BN from OutJS order by BN");
}

void TallyCommands::Output() const {
    LockedStore store(folder_, StoreKind::Main);
    Connection& connection = store.Get();
    const OutputView view = ViewNamed(view_);
    FieldSlots slots;
    TallyState tally;
    if (TallyViewOf(view)) Gather(connection);
    if (!TallyViewOf(view) && !prices_.empty()) FillSettlementOf(connection);
    RebuildForOutput(connection, view, Classes(), slots, tally);
    std::optional<FileTable> table = LoadOutput(connection, view);
    if (!table) return;
    const std::optional<TallyView> tallyView = TallyViewOf(view);
    for (const std::string& line : tallyView ? Note(connection, *tallyView) : std::vector<std::string>()) {
        std::cerr << line << '\n';
        if (!to_.empty()) table->below.push_back({line});
    }
    if (to_.empty()) {
        std::cout << TableText({*table}, TabPlace::BehindEachCell);
    } else if (to_.ends_with(".xlsx")) {
        TableWorkbook({*table}).Save(to_);
    } else if (to_.ends_with(".txt")) {
        SaveTableText({*table}, TabPlace::BehindEachCell, to_);
    } else {
        throw Error("文件“" + to_ + "”的扩展名应是 .txt 或 .xlsx。");
    }
}

}  // namespace kalvane
