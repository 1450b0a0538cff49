#include "output/sheet_walk.h"

#include "formula/composite.h"
#include "numeric/error.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

/// The classes of one window type.
void WalkType(FormulaRows& rows, const std::string& typeId, const LabelSet* labels, double multiplier,
              const SheetSink& sink, const SheetFailure& failed) {
    for (const MaterialClass materialClass : kAllClasses) {
        try {
            SheetLine line{materialClass, 0, nullptr, labels, multiplier};
            for (const FormulaRow& row : rows.Of(materialClass, typeId)) {
                if (line.number == 0) sink(line);
                ++line.number;
                line.formulas = &row;
                sink(line);
            }
        } catch (const Error& failure) {
            failed(failure.what());
        }
    }
}

}  // namespace

void WalkSheet(Connection& connection, FormulaRows& rows, const WindowEntry& window, const LabelSet* labels,
               const SheetSink& sink, const SheetFailure& failed) {
    try {
        const double pieces = Val(window.count);
        if (!IsComposite(window.typeNumber)) {
            WalkType(rows, window.typeNumber, labels, pieces, sink, failed);
            return;
        }
        MemberWalk member(connection, window.number);
        while (true) {
            const LabelSet* memberLabels = &member.Labels();
            try {
                if (!member.Next()) break;
            } catch (const Error& failure) {
                failed(failure.what());
                memberLabels = nullptr;
            }
            WalkType(rows, member.TypeId(), memberLabels, pieces * member.Count(), sink, failed);
        }
    } catch (const Error& failure) {
        failed(failure.what());
    }
}

}  // namespace kalvane
