#include "optimise/demand_file.h"

#include <algorithm>
#include <string_view>

#include "numeric/text.h"
#include "platform/code_page.h"
#include "platform/error.h"
#include "platform/files.h"

namespace kalvane {
namespace {

/// Takes the next field and what ends it off `rest`.
std::string TakeField(std::string_view& rest) {
    const std::size_t end = std::min(rest.find_first_of(",\r\n"), rest.size());
    std::string field(Trim(rest.substr(0, end)));
    rest.remove_prefix(end);
    if (rest.starts_with("\r\n")) {
        rest.remove_prefix(2);
    } else if (!rest.empty()) {
        rest.remove_prefix(1);
    }
    return field;
}

}  // namespace

void ReadDemandFile(const std::filesystem::path& path, std::vector<ManualRow>& rows) {
    const std::string text = DecodeFileText(ReadFile(path));
    std::string_view rest = text;
    // Blank lines at the end are no row: other editors like to leave some.
    while (!rest.empty() && std::string_view(" \r\n").find(rest.back()) != std::string_view::npos) {
        rest.remove_suffix(1);
    }
    while (!rest.empty()) {
        std::string length = TakeField(rest);
        if (rest.empty()) {
            throw FileError("文件“" + path.string() + "”不完整：长度“" + length + "”后缺少数量。");
        }
        rows.push_back({std::move(length), TakeField(rest)});
    }
}

void WriteDemandFile(const std::filesystem::path& path, const std::vector<ManualRow>& rows) {
    std::string text;
    for (const ManualRow& row : rows) text += row.length + "\r\n" + row.count + "\r\n";
    WriteFileAtomically(path, ToGbk(text));
}

}  // namespace kalvane
