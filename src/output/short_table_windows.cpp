#include "output/short_table_windows.h"

#include <algorithm>
#include <cmath>

#include "formula/composite.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

/// Runs `work`; a failure is said to be that of `what`.
template <typename Work>
auto Naming(const std::string& what, Work work) {
    try {
        return work();
    } catch (const Error& failure) {
        throw Error(what + "：" + failure.what());
    }
}

/// Works out a profile and, when it is a key one, puts its length and count in their fields.
void AddProfile(const FormulaRow& row, const LabelSet& labels, double pieces,
                SimpleBuyTable::Fields& fields) {
    const std::string name = UpperCase(row.name.Text());
    std::string length = ShortText(EvalWithLabels(row.length.Text(), labels));
    const auto quantity = static_cast<double>(std::floor(EvalWithLabels(row.quantity.Text(), labels)));
    std::string count = ShortText(quantity * pieces);
    const auto* const key = std::find(kKeyNames.begin(), kKeyNames.end(), name);
    if (key == kKeyNames.end()) return;
    const auto field = static_cast<std::size_t>(3 + 2 * (key - kKeyNames.begin()));
    fields[field] = std::move(length);
    fields[field + 1] = std::move(count);
}

}  // namespace

std::string AddWindow(Connection& connection, FieldSlots& slots, FormulaRows& rows, const WindowEntry& window,
                      SimpleBuyTable& table) {
    if (IsComposite(window.typeNumber)) return "组合门窗";
    const std::string named = "门窗“" + window.name + "”";
    const LabelSet labels =
        Naming(named + "的标注不能读出", [&] { return LoadPlainLabels(connection, window.number); });
    if (labels.last < 0) return "没有标注";
    LoadRowById(connection, "门窗", window.typeNumber, slots);
    SimpleBuyTable::Fields fields;
    fields[1] = window.width + "*" + window.height;
    fields[2] = window.count;
    fields[15] = window.typeNumber;
    fields[16] = slots[4];
    fields[17] = slots[2];
    const std::vector<FormulaRow>& profiles = rows.Of(MaterialClass::Profile, window.typeNumber);
    if (profiles.empty()) return "窗型没有型材";
    const double pieces = Val(window.count);
    for (const FormulaRow& row : profiles) {
        Naming(named + "的型材“" + row.name.TextOrEmpty() + "”不能计算",
               [&] { AddProfile(row, labels, pieces, fields); });
    }
    table.AddRecord(fields);
    return {};
}

ShortTable MakeShortTable(Connection& connection, FieldSlots& slots, const std::string& projectName,
                          std::span<const WindowEntry> windows) {
    ShortTable made;
    FormulaRows rows(connection);
    for (const WindowEntry& window : windows) {
        std::string reason = AddWindow(connection, slots, rows, window, made.table);
        if (!reason.empty()) made.leftOut.push_back({window.name, std::move(reason)});
    }
    made.table.AddRecordEnd();
    made.table.ProjectName = projectName;
    return made;
}

}  // namespace kalvane
