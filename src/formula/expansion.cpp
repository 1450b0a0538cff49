#include "formula/expansion.h"

#include <cmath>
#include <optional>

#include "numeric/error.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

/// What the quantities of a window type are multiplied by. Each product passes through text.
struct Multiplier {
    std::string pieces;                 ///< for profiles, steels and panels
    std::string fittingPieces;          ///< for fittings, first factor
    std::optional<std::int16_t> count;  ///< for fittings of a composite, second factor
    NullUnit nullUnit = NullUnit::Fails;
};

float Evaluate(const FieldValue& formula, const LabelSet& labels) {
    return EvalWithLabels(formula.Text(), labels);
}

void ExpandBar(BillRow& bill, const FormulaRow& row, const LabelSet& labels, const Multiplier& multiplier) {
    bill.code = row.code.Text();
    bill.length = ShortText(Evaluate(row.length, labels));
    const double quantity = static_cast<double>(std::floor(Evaluate(row.quantity, labels)));
    bill.quantity = ShortText(quantity * Val(multiplier.pieces));
}

void ExpandFitting(BillRow& bill, const FormulaRow& row, const LabelSet& labels,
                   const Multiplier& multiplier) {
    bill.code = row.code.Text();
    if (row.unit.IsNull() && multiplier.nullUnit == NullUnit::CountsZero) {
        bill.quantity = "0";
        return;
    }
    bill.unit = row.unit.Text();
    const std::int16_t each = RoundToInt16(Val(ShortText(Evaluate(row.quantity, labels))));
    bill.quantity = ShortText(each * Val(multiplier.fittingPieces));
    if (multiplier.count) bill.quantity = ShortText(Val(bill.quantity) * *multiplier.count);
}

void ExpandPanel(BillRow& bill, const FormulaRow& row, const LabelSet& labels, const Multiplier& multiplier) {
    bill.length = ShortText(Evaluate(row.length, labels));
    bill.width = ShortText(Evaluate(row.width, labels));
    bill.quantity = ShortText(row.quantity.Number() * Val(multiplier.pieces));
}

/// One window type with the labels of one window.
void ExpandType(FormulaRows& rows, const std::string& typeId, const LabelSet& labels,
                const Multiplier& multiplier, const BillSink& sink) {
    for (const MaterialClass materialClass : kAllClasses) {
        const auto expand = materialClass == MaterialClass::Fitting ? ExpandFitting
                            : materialClass == MaterialClass::Panel ? ExpandPanel
                                                                    : ExpandBar;
        for (const FormulaRow& row : rows.Of(materialClass, typeId)) {
            BillRow bill;
            bill.materialClass = materialClass;
            bill.formulas = &row;
            bill.typeId = &typeId;
            bill.labels = &labels;
            bill.name = row.name.Text();
            expand(bill, row, labels, multiplier);
            sink(bill);
        }
    }
}

}  // namespace

void ExpandPlain(Connection& connection, FormulaRows& rows, const WindowToExpand& window, Notice& notice,
                 const BillSink& sink, NullUnit nullUnit) {
    try {
        const LabelSet labels = LoadPlainLabels(connection, window.id);
        ExpandType(rows, window.typeId, labels, {window.count, window.count, std::nullopt, nullUnit}, sink);
    } catch (const Error& failure) {
        notice.Show(failure.what(), "出错！", NoticeIcon::Error);
    }
}

void ExpandComposite(Connection& connection, FormulaRows& rows, const WindowToExpand& window,
                     const BillSink& sink, NullUnit nullUnit) {
    for (MemberWalk member(connection, window.id); member.Next();) {
        const double pieces = ParseNumber(window.count);
        const Multiplier multiplier{ShortText(pieces * member.Count()), ShortText(pieces), member.Count(),
                                    nullUnit};
        ExpandType(rows, member.TypeId(), member.Labels(), multiplier, sink);
    }
}

}  // namespace kalvane
