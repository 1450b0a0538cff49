#include "optimise/demand_file.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "optimise/row_complaints.h"
#include "platform/code_page.h"
#include "platform/files.h"

namespace kalvane {
namespace {

constexpr std::uintmax_t kLargestFile = 64U << 20U;

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

/// Counts lines while a text is read.
class LineCounter {
  public:
    void Read(std::string_view part) {
        newlines_ += static_cast<int>(std::count(part.begin(), part.end(), '\n'));
        returns_ += static_cast<int>(std::count(part.begin(), part.end(), '\r'));
    }
    /// Number of the line behind the text that was read so far.
    int Line() const { return 1 + (newlines_ > 0 ? newlines_ : returns_); }

  private:
    int newlines_ = 0;
    int returns_ = 0;
};

/// A field as it stands in a message: of a long one the beginning.
std::string Quoted(const std::string& field) {
    constexpr std::size_t kMostShown = 30;  // characters
    if (CharCount(field) <= kMostShown) return "“" + field + "”";
    return "“" + std::string(LeftChars(field, kMostShown)) + "……”";
}

}  // namespace

bool IsPlainNumber(std::string_view text) {
    return text.find_first_not_of("0123456789.") == std::string_view::npos && IsNumeric(text);
}

void ReadDemandFile(const std::filesystem::path& path, std::vector<ManualRow>& rows) {
    const std::string text = DecodeFileText(ReadPlainFile(path, kLargestFile));
    std::string_view rest = text;
    // Blank lines at the end are no row: other editors like to leave some.
    while (!rest.empty() && std::string_view(" \r\n").find(rest.back()) != std::string_view::npos) {
        rest.remove_suffix(1);
    }
    RowComplaints complaints;
    LineCounter lines;
    const char* read = rest.data();
    while (!rest.empty()) {
        lines.Read({read, rest.data()});
        read = rest.data();
        const int line = lines.Line();
        ManualRow row{TakeField(rest), {}};
        if (rest.empty()) {
            complaints.Add(line, "长度" + Quoted(row.length) + "后缺少数量");
            break;
        }
        row.count = TakeField(rest);
        if (IsPlainNumber(row.length) && IsPlainNumber(row.count)) {
            rows.push_back(std::move(row));
        } else {
            complaints.Add(line, "长度" + Quoted(row.length) + "、数量" + Quoted(row.count) + "不是数字");
        }
    }
    if (!complaints.IsEmpty()) {
        throw FileError("文件“" + path.string() + "”" + complaints.Message());
    }
}

void WriteDemandFile(const std::filesystem::path& path, const std::vector<ManualRow>& rows) {
    std::string text;
    for (const ManualRow& row : rows) text += row.length + "\r\n" + row.count + "\r\n";
    WriteFileAtomically(path, ToGbk(text));
}

}  // namespace kalvane
