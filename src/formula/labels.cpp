#include "formula/labels.h"

#include <utility>

#include "formula/cal.h"
#include "numeric/assertion.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

/// Reads name and value of every row, in the order of the rows; a cursor without rows gives an empty set.
LabelSet ReadRows(Cursor& rows, std::string_view nameColumn, std::string_view valueColumn) {
    LabelSet labels;
    const int name = rows.FieldIndex(nameColumn);
    const int value = rows.FieldIndex(valueColumn);
    for (; !rows.Eof(); rows.MoveNext()) {
        labels.names.push_back(rows.Field(name).Text());
        labels.values.push_back(rows.Field(value).Text());
    }
    labels.px.resize(labels.names.size());
    labels.py.resize(labels.names.size());
    labels.last = Checked16(static_cast<std::int64_t>(labels.names.size()) - 1);
    return labels;
}

LabelSet Sorted(LabelSet labels) {
    SortLabelsByLength(labels.names, labels.values, labels.px, labels.py, labels.last);
    return labels;
}

Cursor PlainLabelRows(Connection& connection, std::string_view windowId) {
    return connection.OpenCursor("Select * from 标注 where MCNUM=" + std::string(windowId));
}

std::int32_t PlaceIn(const FieldValue& field) {
    return field.IsNull() ? 0 : RoundToInt32(field.Number());
}

/// False when a text in capitals cannot hold the name: it lacks its first letter. Most labels of a window
/// are not in a formula, so that this spares most searches.
bool MayOccur(std::string_view capitals, std::string_view name) {
    if (name.empty() || static_cast<unsigned char>(name[0]) >= 0x80) return true;
    const char first = name[0] >= 'a' && name[0] <= 'z' ? static_cast<char>(name[0] - 'a' + 'A') : name[0];
    return capitals.find(first) != std::string_view::npos;
}

/// The labels 0 to `last` put in one after the other.
std::string PutIn(std::string_view formula, const std::vector<std::string>& names,
                  const std::vector<std::string>& values, std::int16_t last) {
    const auto count = static_cast<std::size_t>(last + 1);
    KALVANE_ASSERT(names.size() >= count && values.size() >= count);
    std::string text = UpperCase(formula);
    for (std::size_t i = 0; i < count; ++i) {
        // A value goes in as it stands, and counts in capitals from the next label on.
        if (MayOccur(text, names[i]) && Substitute(text, UpperCase(names[i]), values[i])) {
            MakeUpperCase(text);
        }
    }
    return text;
}

}  // namespace

LabelSet LoadPlainLabels(Connection& connection, std::string_view windowId) {
    Cursor rows = PlainLabelRows(connection, windowId);
    return Sorted(ReadRows(rows, "MC", "schar"));
}

LabelSet LoadPlacedLabels(Connection& connection, std::string_view windowId) {
    Cursor rows = PlainLabelRows(connection, windowId);
    LabelSet labels = ReadRows(rows, "MC", "schar");
    rows.MoveFirst();
    for (std::size_t i = 0; !rows.Eof(); rows.MoveNext(), ++i) {
        labels.px[i] = PlaceIn(rows.Field("px"));
        labels.py[i] = PlaceIn(rows.Field("py"));
    }
    return Sorted(std::move(labels));
}

void LoadMemberLabels(Connection& connection, std::string_view windowId, std::string_view cbn,
                      std::string_view cmc, LabelSet& labels, std::int16_t& count) {
    Cursor rows =
        connection.OpenCursor("Select * from 标注2 where MCBN=" + std::string(windowId) +
                              " and CBN=" + std::string(cbn) + " and CMC='" + std::string(cmc) + "'");
    if (rows.Eof()) return;
    count = RoundToInt16(rows.Field("Count").Number());
    labels = Sorted(ReadRows(rows, "MC", "MCZ"));
}

void SortLabelsByLength(std::vector<std::string>& names, std::vector<std::string>& values,
                        std::vector<std::int32_t>& px, std::vector<std::int32_t>& py, std::int16_t last) {
    if (last < 1) return;
    const auto count = static_cast<std::size_t>(last) + 1;
    for (std::size_t i = 0; i < count; ++i) {
        names[i] = Trim(names[i]);
        values[i] = Trim(values[i]);
    }
    for (std::size_t i = 0; i + 1 < count; ++i) {
        for (std::size_t j = i + 1; j < count; ++j) {
            if (CharCount(names[j]) <= CharCount(names[i])) continue;
            std::swap(names[i], names[j]);
            std::swap(values[i], values[j]);
            std::swap(px[i], px[j]);
            std::swap(py[i], py[j]);
        }
    }
}

std::string WithValues(std::string_view formula, const LabelSet& labels) {
    return PutIn(formula, labels.names, labels.values, labels.last);
}

float EvalWithLabels(std::string_view formula, const std::vector<std::string>& names,
                     const std::vector<std::string>& values, std::int16_t last) {
    return Cal().CalExpress(PutIn(formula, names, values, last));
}

}  // namespace kalvane
