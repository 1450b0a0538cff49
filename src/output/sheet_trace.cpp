#include "output/sheet_trace.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "output/component_sheet.h"
#include "output/sheet_walk.h"

namespace kalvane {
namespace {

/// "型材长度：b-60 → 1000-60 = 940"
std::string Evaluated(const std::string& caption, const FieldValue& formula, const LabelSet* labels) {
    std::string text = "\n" + caption + "：" + formula.TextOrEmpty();
    try {
        if (labels == nullptr) throw NumericError("标注不能读出");
        text += " → " + WithValues(formula.Text(), *labels) + " = ";
        text += ShortText(EvalWithLabels(formula.Text(), *labels));
    } catch (const Error& failure) {
        text += "（不能计算：" + std::string(failure.what()) + "）";
    }
    return text;
}

std::string Trace(const SheetLine& line) {
    const auto cells = SheetCells(line, [](const std::string&) {});
    const FormulaRow& row = *line.formulas;
    std::string text = cells[1];
    const std::string pieces = "，樘数 " + ShortText(line.multiplier) + "，数量 " + cells[4];
    switch (line.materialClass) {
        case MaterialClass::Profile:
        case MaterialClass::Steel:
            text += "  " + cells[2] + Evaluated("长度", row.length, line.labels);
            text += Evaluated("每樘", row.quantity, line.labels) + "，舍去小数" + pieces;
            break;
        case MaterialClass::Fitting:
            text +=
                "  " + cells[2] + Evaluated("每樘", row.quantity, line.labels) + "，四舍六入五成双" + pieces;
            break;
        case MaterialClass::Panel:
            text += Evaluated("长", row.length, line.labels) + Evaluated("宽", row.width, line.labels);
            text += "\n每樘：" + row.quantity.TextOrEmpty() + pieces;
            break;
    }
    if (line.labels == nullptr || line.labels->last < 0) return text;
    text += "\n标注：";
    for (std::size_t i = 0; i < line.labels->names.size(); ++i) {
        text += (i > 0 ? "，" : "") + line.labels->names[i] + " = " + line.labels->values[i];
    }
    return text;
}

}  // namespace

std::string TraceSheetRow(Connection& connection, const WindowEntry& window, int row) {
    const SheetFailure ignore = [](const std::string&) {};
    LabelSet labels;
    bool hasLabels = true;
    try {
        labels = LoadPlainLabels(connection, window.number);
    } catch (const Error&) {
        hasLabels = false;
    }
    std::string text;
    int at = 0;
    FormulaRows rows(connection);
    const SheetSink find = [&](const SheetLine& line) {
        if (++at == row && line.number > 0) text = Trace(line);
    };
    WalkSheet(connection, rows, window, hasLabels ? &labels : nullptr, find, ignore);
    return text;
}

}  // namespace kalvane
