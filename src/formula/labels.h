#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"

namespace kalvane {

/// The labels of one window or member: four arrays of one length, from index 0.
struct LabelSet {
    std::vector<std::string> names;
    std::vector<std::string> values;
    std::vector<std::int32_t> px;  ///< carried through the sort; 0 where a loader does not read positions
    std::vector<std::int32_t> py;
    std::int16_t last = -1;  ///< highest index in use; -1 for no labels
};

/// Labels of a plain project window (工程门窗.编号), sorted. Throws StoreError, and NumericError for a Null.
LabelSet LoadPlainLabels(Connection& connection, std::string_view windowId);

/// As LoadPlainLabels, with the places of the labels in the drawing; one that is Null is 0.
LabelSet LoadPlacedLabels(Connection& connection, std::string_view windowId);

/// Labels of a composite's member, sorted, and how many of it one composite has. A member without label rows
/// leaves both as they were. Throws StoreError, and NumericError for a Null or a count beyond 16 bits.
void LoadMemberLabels(Connection& connection, std::string_view windowId, std::string_view cbn,
                      std::string_view cmc, LabelSet& labels, std::int16_t& count);

/// Trims names and values and puts the longest names first, so that a name inside another is put in after
/// it. A set of fewer than two labels is left as it is.
void SortLabelsByLength(std::vector<std::string>& names, std::vector<std::string>& values,
                        std::vector<std::int32_t>& px, std::vector<std::int32_t>& py, std::int16_t last);

/// A formula as it is evaluated: in capitals, with the labels' values put in.
std::string WithValues(std::string_view formula, const LabelSet& labels);

/// The value of a formula with the labels 0 to `last` put in one after the other, in the order given. Names
/// are looked for anywhere in the text, without regard to case. Throws FormulaError as Cal does.
float EvalWithLabels(std::string_view formula, const std::vector<std::string>& names,
                     const std::vector<std::string>& values, std::int16_t last);

inline float EvalWithLabels(std::string_view formula, const LabelSet& labels) {
    return EvalWithLabels(formula, labels.names, labels.values, labels.last);
}

}  // namespace kalvane
