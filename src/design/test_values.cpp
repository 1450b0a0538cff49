#include "design/test_values.h"

#include <algorithm>

#include "design/formula_reading.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {

std::vector<TestLabel> LabelsToTest(Connection& connection, std::string_view type, std::string_view drawing) {
    std::vector<TestLabel> labels;
    const auto find = [&labels](std::string_view name) {
        return std::find_if(labels.begin(), labels.end(), [name](const TestLabel& label) {
            return EqualIgnoringCase(label.name, Trim(name));
        });
    };
    Cursor text = connection.OpenCursor("Select * from Strings where Bn=" + std::string(drawing));
    for (; !text.Eof(); text.MoveNext()) {
        const std::string name(Trim(text.Field("Chars").TextOrEmpty()));
        if (find(name) == labels.end()) labels.push_back({name, {}});
    }
    const Cursor latest =
        connection.OpenCursor("Select max(编号) from 工程门窗 where 门窗编号=" + std::string(type));
    if (latest.Field(0).IsNull()) return labels;
    Cursor value = connection.OpenCursor("Select * from 标注 where MCNUM=" + latest.Field(0).Text());
    for (; !value.Eof(); value.MoveNext()) {
        const auto label = find(value.Field("MC").TextOrEmpty());
        if (label != labels.end()) label->value = value.Field("schar").TextOrEmpty();
    }
    return labels;
}

TestValues::TestValues(const std::vector<TestLabel>& labels) {
    for (const TestLabel& label : labels) {
        names_.push_back(label.name);
        if (Trim(label.value).empty()) withoutValue_.push_back(label.name);
        labels_.names.push_back(label.name);
        labels_.values.push_back(label.value);
    }
    labels_.px.resize(labels.size());
    labels_.py.resize(labels.size());
    labels_.last = Checked16(static_cast<std::int64_t>(labels.size()) - 1);
    SortLabelsByLength(labels_.names, labels_.values, labels_.px, labels_.py, labels_.last);
}

std::optional<double> TestValues::Of(std::string_view label) const {
    for (std::size_t i = 0; i < labels_.names.size(); ++i) {
        const bool isMeant = EqualIgnoringCase(labels_.names[i], label) && !labels_.values[i].empty();
        if (isMeant) return Val(labels_.values[i]);
    }
    return std::nullopt;
}

std::vector<std::string> TestValues::MissingIn(std::string_view formula) const {
    std::vector<std::string> missing;
    for (const std::string& label : LabelsIn(formula, names_)) {
        const bool isMissing =
            std::find(withoutValue_.begin(), withoutValue_.end(), label) != withoutValue_.end();
        if (isMissing) missing.push_back(label);
    }
    return missing;
}

std::optional<float> TestValues::Try(std::string_view formula) const {
    if (!MissingIn(formula).empty()) return std::nullopt;
    return EvalWithLabels(formula, labels_);
}

std::string RowValues(MaterialClass materialClass, const FormulaTexts& row, const TestValues& values) {
    const FormulaTable& table = FormulaTableOf(materialClass);
    std::string text;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (!table.isFormula[i]) continue;
        if (!text.empty()) text += "，";
        text += std::string(table.columns[i]) + " = ";
        try {
            const std::optional<float> value = values.Try(row[i]);
            text += value ? ShortText(*value) : "？（缺少试算值）";
        } catch (const FormulaError&) {
            text += "？（无法计算）";
        }
    }
    return text;
}

}  // namespace kalvane
