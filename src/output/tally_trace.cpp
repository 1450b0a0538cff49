#include "output/tally_trace.h"

#include <algorithm>

#include "formula/composite.h"
#include "numeric/number.h"
#include "output/gathered_bills.h"

namespace kalvane {
namespace {

/// The length or width of a detail's group and of a row; a summary's group has none and takes all.
bool IsSameSize(const std::string& ofGroup, const std::string& ofRow) {
    return ofGroup.empty() || static_cast<float>(Val(ofGroup)) == static_cast<float>(Val(ofRow));
}

bool BelongsTo(const TallyGroup& group, const BillRow& row) {
    if (row.materialClass != group.materialClass) return false;
    const std::string& key = row.materialClass == MaterialClass::Panel ? row.name : row.code;
    return key == group.key && IsSameSize(group.length, row.length) && IsSameSize(group.width, row.width);
}

TraceLine LineOf(const WindowEntry& window, const BillRow& row) {
    const FormulaRow& formulas = *row.formulas;
    const auto both = [&](auto text) {
        std::string joined = text(formulas.length);
        if (!formulas.width.IsNull()) joined += " × " + text(formulas.width);
        return joined;
    };
    const bool isFitting = row.materialClass == MaterialClass::Fitting;
    const auto asWritten = [](const FieldValue& field) { return field.TextOrEmpty(); };
    const auto withValues = [&](const FieldValue& field) {
        return WithValues(field.TextOrEmpty(), *row.labels);
    };
    return {window.name,
            window.position,
            window.count,
            row.name,
            isFitting ? asWritten(formulas.quantity) : both(asWritten),
            isFitting ? withValues(formulas.quantity) : both(withValues),
            row.length,
            row.width,
            row.quantity,
            *row.typeId};
}

}  // namespace

std::vector<TraceLine> TraceGroup(Connection& connection, std::span<const WindowEntry> windows,
                                  const TallyGroup& group) {
    std::vector<TraceLine> lines;
    ExpandGathered(connection, windows, [&](const WindowEntry& window, const BillRow& row) {
        if (BelongsTo(group, row)) lines.push_back(LineOf(window, row));
    });
    return lines;
}

std::vector<std::string> FindUses(Connection& connection, std::span<const WindowEntry> windows,
                                  const MaterialKey& material) {
    std::vector<std::string> uses;
    FormulaRows rows(connection);
    for (const WindowEntry& window : windows) {
        const auto look = [&](const std::string& typeId) {
            for (const FormulaRow& row : rows.Of(material.first, typeId)) {
                const FieldValue& key = material.first == MaterialClass::Panel ? row.name : row.code;
                if (key.TextOrEmpty() != material.second) continue;
                const std::string use = window.name + " 的“" + row.name.TextOrEmpty() + "”";
                if (std::find(uses.begin(), uses.end(), use) == uses.end()) uses.push_back(use);
            }
        };
        if (!IsComposite(window.typeNumber)) {
            look(window.typeNumber);
        } else {
            for (MemberWalk member(connection, window.number); member.Next();) look(member.TypeId());
        }
    }
    return uses;
}

}  // namespace kalvane
