#include "output/gathering_record.h"

#include <algorithm>

#include "numeric/error.h"
#include "numeric/text.h"
#include "output/tally.h"
#include "platform/files.h"

namespace kalvane {
namespace {

using Fields = std::vector<std::string>;

constexpr std::size_t kHeadFields = 4;
constexpr std::size_t kNamesShown = 12;

std::filesystem::path FileOf(const Connection& connection) {
    return connection.File().parent_path() / "归总记录.txt";
}

/// Tells the raw rows of one gathering from those of most others.
std::string Fingerprint(Connection& connection) {
    std::string text;
    for (const char* table : {"OutXC", "OutXG", "OutPJ", "OutPC"}) {
        const Cursor row = connection.OpenCursor(std::string("Select count(*),sum(数量) from ") + table);
        text += row.Field(0).Text() + "/" + row.Field(1).TextOrEmpty() + " ";
    }
    return text;
}

Fields FieldsOf(const WindowEntry& window) {
    return {window.name, window.position,      window.width,      window.height, window.count,
            window.note, window.projectNumber, window.typeNumber, window.number};
}

/// A tab, which parts the fields, is no part of a name that anyone reads.
std::string Line(const Fields& fields) {
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        std::string field = OnOneLine(fields[i]);
        std::replace(field.begin(), field.end(), '\t', ' ');
        line.append(i == 0 ? "" : "\t").append(field);
    }
    return line + '\n';
}

Fields FieldsOf(std::string_view line) {
    Fields fields;
    while (!line.empty()) fields.push_back(FromOneLine(TakeUpTo(line, "\t")));
    return fields;
}

void Save(Connection& connection, const GatheringRecord& record) {
    std::string text =
        Line({record.time, record.project, Fingerprint(connection), record.endedEarly ? "1" : "0"});
    text += Line(record.cutShort);
    for (const WindowEntry& window : record.windows) text += Line(FieldsOf(window));
    WriteFileAtomically(FileOf(connection), text);
}

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), kNamesShown); ++i)
        text += (i == 0 ? "" : "、") + names[i];
    return names.size() > kNamesShown ? text + " 等" : text;
}

}  // namespace

std::string GatheringRecord::Text() const {
    std::vector<std::string> names;
    for (const WindowEntry& window : windows) names.push_back(window.name);
    std::string text = time + " 归总，工程“" + project + "”，" + std::to_string(windows.size()) +
                       " 种门窗：" + Joined(names) + "。";
    if (!cutShort.empty()) text += "没有统计完整的：" + Joined(cutShort) + "。";
    if (endedEarly) text += "归总中途出错，后面的门窗没有统计。";
    return text;
}

bool GatheringRecord::IsOf(std::span<const WindowEntry> others) const {
    return std::equal(windows.begin(), windows.end(), others.begin(), others.end(),
                      [](const WindowEntry& a, const WindowEntry& b) { return FieldsOf(a) == FieldsOf(b); });
}

void GatherAndRecord(Connection& connection, const std::string& project, std::span<const WindowEntry> windows,
                     const std::string& time, Notice& notice) {
    GatheringRecord record{time, project, {windows.begin(), windows.end()}, {}, true};
    try {
        record.cutShort = GatherTallies(connection, windows, notice);
    } catch (...) {
        Save(connection, record);
        throw;
    }
    record.endedEarly = false;
    Save(connection, record);
}

std::optional<GatheringRecord> LoadGatheringRecord(Connection& connection) {
    std::string text;
    try {
        text = ReadFile(FileOf(connection));
    } catch (const FileError&) {
        return std::nullopt;
    }
    std::string_view rest = text;
    const Fields head = FieldsOf(TakeUpTo(rest, "\n"));
    if (head.size() != kHeadFields || head[2] != Fingerprint(connection)) return std::nullopt;
    GatheringRecord record{head[0], head[1], {}, FieldsOf(TakeUpTo(rest, "\n")), head[3] == "1"};
    while (!rest.empty()) {
        Fields fields = FieldsOf(TakeUpTo(rest, "\n"));
        if (fields.size() != FieldsOf(WindowEntry()).size()) return std::nullopt;
        record.windows.push_back({fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6],
                                  fields[7], fields[8]});
    }
    return record;
}

}  // namespace kalvane
