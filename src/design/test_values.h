#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "design/formula_lists.h"
#include "formula/labels.h"
#include "store/connection.h"

namespace kalvane {

/// A label of a drawing with the value that formulas are tried out with; empty until there is one.
struct TestLabel {
    std::string name;
    std::string value;
};

/// The labels of a drawing, each once, with the values they have in the latest project window of the type.
/// Throws StoreError.
std::vector<TestLabel> LabelsToTest(Connection& connection, std::string_view type, std::string_view drawing);

/// Formulas worked out with test values.
class TestValues {
  public:
    explicit TestValues(const std::vector<TestLabel>& labels);

    const std::vector<std::string>& Names() const { return names_; }
    /// The value of a label, whatever the case of its name; nothing when it has none.
    std::optional<double> Of(std::string_view label) const;

    /// Labels in the formula that have no value yet.
    std::vector<std::string> MissingIn(std::string_view formula) const;
    /// The formula's value; nothing while a value is missing. Throws FormulaError.
    std::optional<float> Try(std::string_view formula) const;

  private:
    std::vector<std::string> names_;
    std::vector<std::string> withoutValue_;
    LabelSet labels_;
};

/// What the formulas of a row come to, for a line below the lists: "数量 = 2，计算公式 = 1394".
std::string RowValues(MaterialClass materialClass, const FormulaTexts& row, const TestValues& values);

}  // namespace kalvane
