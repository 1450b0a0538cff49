#include "batch/commands.h"

#include <iostream>

#include "batch/line_notice.h"
#include "batch/locked_store.h"
#include "batch/project_choice.h"
#include "formula/composite.h"
#include "formula/expansion.h"
#include "formula/labels.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "optimise/demand.h"
#include "optimise/demand_file.h"
#include "optimise/manual_run.h"
#include "optimise/plan.h"
#include "optimise/run.h"
#include "platform/settings_store.h"
#include "project/project_windows.h"

namespace kalvane {
namespace {

void PrintRow(std::initializer_list<std::string_view> fields) {
    const char* separator = "";
    for (const std::string_view field : fields) {
        std::cout << separator << field;
        separator = "\t";
    }
    std::cout << '\n';
}

void GatherProject(Connection& connection, const std::string& project) {
    GatherDemand(connection, ListDemandWindows(connection, ProjectNumber(connection, project)));
}

OptimiseSettings SettingsFor(const RunOptions& options, Notice& notice) {
    OptimiseSettings settings = ReadOptimiseSettings(SettingsStore(SettingsStore::DefaultFile()), notice);
    settings.CLC = options.CLC.value_or(settings.CLC);
    settings.LTC = options.LTC.value_or(settings.LTC);
    settings.CKK = options.CKK.value_or(settings.CKK);
    settings.YHBL = options.YHBL.value_or(settings.YHBL);
    settings.NODES = options.NODES.value_or(settings.NODES);
    return settings;
}

/// The program's own number of a scheme that is counted from 1 here.
std::int16_t SchemeOf(const RunOptions& options) {
    return static_cast<std::int16_t>(options.scheme - 1);
}

void PrintPlan(Connection& connection) {
    for (const PlanRow& row : LoadPlan(connection)) {
        PrintRow({row.material, row.pattern, row.count, row.ratio, row.rest});
    }
}

std::string_view ClassName(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return "profile";
        case MaterialClass::Steel:
            return "steel";
        case MaterialClass::Fitting:
            return "fitting";
        case MaterialClass::Panel:
            return "panel";
    }
    return "";
}

}  // namespace

void EvalCommand(const std::string& formula, const std::vector<std::string>& labels) {
    LabelSet set;
    for (const std::string& label : labels) {
        const std::size_t equals = label.find('=');
        if (equals == std::string::npos) throw FormulaError("标注“" + label + "”应写成 名称=值。");
        set.names.push_back(label.substr(0, equals));
        set.values.push_back(label.substr(equals + 1));
    }
    set.px.resize(labels.size());
    set.py.resize(labels.size());
    set.last = Checked16(static_cast<std::int64_t>(labels.size()) - 1);
    SortLabelsByLength(set.names, set.values, set.px, set.py, set.last);
    PrintRow({ShortText(EvalWithLabels(formula, set))});
}

FolderCommands::FolderCommands(std::filesystem::path folder) : folder_(std::move(folder)) {}

bool FolderCommands::Expand(const std::string& project) const {
    LockedStore store(folder_, StoreKind::Main);
    LineNotice notice;
    FormulaRows rows(store.Get());
    for (const WindowEntry& entry : ChosenWindows(store.Get(), project, {})) {
        const BillSink print = [&](const BillRow& row) {
            PrintRow({entry.name, ClassName(row.materialClass), row.name, row.code, row.length, row.width,
                      row.quantity, row.unit});
        };
        const WindowToExpand window{entry.number, entry.typeNumber, entry.count};
        if (IsComposite(window.typeId)) {
            ExpandComposite(store.Get(), rows, window, print);
        } else {
            ExpandPlain(store.Get(), rows, window, notice, print);
        }
    }
    return !notice.HasShown();
}

void FolderCommands::Demand(const std::string& project) const {
    LockedStore store(folder_, StoreKind::Main);
    GatherProject(store.Get(), project);
    for (Cursor row = store.Get().OpenCursor("Select * from 优化数据"); !row.Eof(); row.MoveNext()) {
        PrintRow({row.Field("编号").TextOrEmpty(), row.Field("名称").TextOrEmpty(),
                  row.Field("规格").TextOrEmpty(), row.Field("长度").TextOrEmpty(),
                  row.Field("数量").TextOrEmpty()});
    }
}

bool FolderCommands::Plan(const std::string& project, const RunOptions& options) const {
    LockedStore store(folder_, StoreKind::Main);
    LineNotice notice;
    GatherProject(store.Get(), project);
    LineNotice run;
    RunOptimisation(store.Get(), SettingsFor(options, notice), SchemeOf(options), ListMaterials(store.Get()),
                    run, {});
    PrintPlan(store.Get());
    return !run.HasShown();
}

bool FolderCommands::Cut(const std::filesystem::path& demandFile, const std::string& name,
                         const RunOptions& options) const {
    std::vector<ManualRow> rows;
    ReadDemandFile(demandFile, rows);
    LockedStore store(folder_, StoreKind::Main);
    LineNotice notice;
    LineNotice run;
    RunManual(store.Get(), SettingsFor(options, notice), SchemeOf(options), name, rows, run, {});
    PrintPlan(store.Get());
    return !run.HasShown();
}

}  // namespace kalvane
