#include "optimise/demand_paste.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "numeric/number.h"
#include "numeric/text.h"
#include "optimise/manual_run.h"

namespace kalvane {
namespace {

/// A line ends at a line feed, a carriage return, or both.
std::string_view TakeLine(std::string_view& rest) {
    const std::string_view line = TakeUpTo(rest, "\r\n");
    const bool endsInReturn = rest.data() > line.data() + line.size() && line.data()[line.size()] == '\r';
    if (endsInReturn && rest.starts_with('\n')) rest.remove_prefix(1);
    return line;
}

std::string Unquoted(std::string_view field) {
    field = Trim(field);
    if (field.size() >= 2 && field.front() == '"' && field.back() == '"') {
        field = Trim(field.substr(1, field.size() - 2));
    }
    return std::string(field);
}

std::vector<std::string> FieldsOf(std::string_view line) {
    const std::string_view divider = line.find('\t') != std::string_view::npos ? "\t" : ",";
    std::vector<std::string> fields;
    while (!line.empty()) fields.push_back(Unquoted(TakeUpTo(line, divider)));
    while (!fields.empty() && fields.back().empty()) fields.pop_back();
    return fields;
}

bool IsHeading(const std::vector<std::string>& fields) {
    for (const std::string& field : fields) {
        if (IsNumeric(field)) return false;
    }
    return true;
}

/// What is wrong with the fields of a row; empty when nothing is.
std::string Complaint(const std::vector<std::string>& fields, const OptimiseSettings& settings) {
    if (fields.size() == 1) return "缺少数量";
    if (fields.size() > 2) return "多于两列";
    const std::string& length = fields[0];
    const std::string& count = fields[1];
    if (!IsPlainNumber(length) || Val(length) == 0) return "长度“" + length + "”不是正数";
    if (!IsPlainNumber(count) || Val(count) == 0) return "数量“" + count + "”不是正数";
    if (Val(count) != std::floor(Val(count))) return "数量“" + count + "”不是整数";
    if (Val(count) > std::numeric_limits<std::int16_t>::max()) return "数量“" + count + "”过大";
    const auto failure = CheckManualRow({length, count}, settings);
    return failure ? "长度“" + length + "”：" + failure->message : "";
}

}  // namespace

PastedDemand ParsePastedDemand(std::string_view text, const OptimiseSettings& settings) {
    PastedDemand pasted;
    bool isFirst = true;
    for (int line = 1; !text.empty(); ++line) {
        const std::vector<std::string> fields = FieldsOf(TakeLine(text));
        if (fields.empty()) continue;
        const bool isHeading = isFirst && IsHeading(fields);
        isFirst = false;
        if (isHeading) continue;
        const std::string complaint = Complaint(fields, settings);
        if (complaint.empty()) {
            pasted.rows.push_back({fields[0], fields[1]});
        } else {
            pasted.complaints.Add(line, complaint);
        }
    }
    return pasted;
}

}  // namespace kalvane
