#include "drawing/dxf_import.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>

#include "drawing/cpictire.h"
#include "drawing/token_reader.h"
#include "numeric/error.h"
#include "numeric/text.h"
#include "platform/code_page.h"
#include "platform/files.h"

namespace kalvane {
namespace {

constexpr std::uintmax_t kLargestFile = 512U << 20U;
constexpr std::size_t kMostKinds = 100;  // that are counted by name
constexpr std::size_t kKindsInPrompt = 6;
constexpr std::size_t kLongestName = 24;  // bytes of a kind's name
constexpr std::string_view kOtherKinds = "其他";
constexpr std::string_view kBinaryMark = "AutoCAD Binary DXF";  // at the front of the format's other form

std::filebuf OpenDxf(const std::filesystem::path& path) {
    RequirePlainFile(path, kLargestFile);
    std::filebuf file;
    if (file.open(path, std::ios::in | std::ios::binary) == nullptr) {
        throw FileError("文件“" + path.string() + "”不能打开。");
    }
    char beginning[kBinaryMark.size()];
    const auto length = static_cast<std::size_t>(file.sgetn(beginning, sizeof beginning));
    if (std::string_view(beginning, length) == kBinaryMark) {
        throw FileError("文件“" + path.string() +
                        "”是二进制的 DXF，不能导入。请在画图程序里另存为文字格式（ASCII）的 DXF。");
    }
    file.pubseekpos(0, std::ios::in);
    return file;
}

/// What a first pass over the whole file finds.
struct Survey {
    bool isUtf8 = true;
    std::map<std::string, int> entities;  ///< of the section ENTITIES, by kind
};

/// Reads the file as what it is, pairs of a group code and a value on a line each.
Survey SurveyDxf(std::streambuf& file) {
    Survey survey;
    bool inEntities = false;
    bool hasChinese = false;
    TokenReader lines(file, "");
    const auto next = [&] {
        std::string line(lines.Next());
        survey.isUtf8 = survey.isUtf8 && IsUtf8(line);
        hasChinese = hasChinese || std::any_of(line.begin(), line.end(),
                                               [](char c) { return static_cast<unsigned char>(c) >= 0xE0; });
        return line;
    };
    const auto count = [&](const std::string& kind) {
        const bool isKnown = survey.entities.contains(kind) || survey.entities.size() < kMostKinds;
        ++survey.entities[isKnown ? kind : std::string(kOtherKinds)];
    };
    while (!lines.AtEnd()) {
        const std::string code = next();
        const std::string value = next();
        if (code == "2" && value == "ENTITIES") inEntities = true;
        if (code != "0" || !inEntities) continue;
        if (value == "ENDSEC") {
            inEntities = false;
        } else if (value != "VERTEX" && value != "SEQEND") {  // which are parts of the entity before
            count(DecodeFileText(value.substr(0, kLongestName)));
        }
    }
    // As in DecodeFileText: without a character of three bytes it may as well be GBK.
    survey.isUtf8 = survey.isUtf8 && hasChinese;
    return survey;
}

class DxfReader {
  public:
    DxfReader(std::streambuf& file, bool isUtf8, CPictire& picture)
        : tokens_(file), isUtf8_(isUtf8), picture_(picture) {}

    void Run() {
        bool inEntities = false;
        while (!tokens_.AtEnd()) {
            const std::string_view token = tokens_.Next();
            if (token == "ENTITIES") inEntities = true;
            if (!inEntities) continue;
            if (token == "LINE") {
                ReadDxfLine();
            } else if (token == "LWPOLYLINE") {
                ReadDxfPolyline();
            } else if (token == "DIMENSION") {
                ReadDxfDimension();
            }
        }
    }

  private:
    /// The number behind a group code; none when the file ends there.
    std::optional<float> NextNumber() {
        if (tokens_.AtEnd()) return std::nullopt;
        return tokens_.ToFloat(tokens_.Next());
    }

    /// Group codes with a number behind them and the places the numbers go to.
    struct Place {
        std::string_view code;
        float* value;
    };

    /// Reads to the group `last` and its number. The text behind a group 1 is stored in `text` if that is
    /// given. False when the file ends before.
    bool ReadGroups(std::initializer_list<Place> places, std::string_view last, std::string* text = nullptr) {
        while (!tokens_.AtEnd()) {
            const std::string_view token = tokens_.Next();
            if (text != nullptr && token == "1") {
                *text = Decode(tokens_.Next());
                continue;
            }
            const auto* place = std::find_if(places.begin(), places.end(),
                                             [&](const Place& each) { return each.code == token; });
            if (place == places.end()) continue;
            const std::optional<float> number = NextNumber();
            if (!number) return false;
            *place->value = *number;
            if (place->code == last) return true;
        }
        return false;
    }

    void ReadDxfLine() {
        LineItem line;
        const bool isWhole = ReadGroups({{"10", &line.p1.x},  //
                                         {"20", &line.p1.y},
                                         {"11", &line.p2.x},
                                         {"21", &line.p2.y}},
                                        "21");
        if (isWhole) picture_.AddLine(line);
    }

    void ReadDxfPolyline() {
        Point vertices[4];
        for (Point& vertex : vertices) {
            if (!ReadGroups({{"10", &vertex.x}, {"20", &vertex.y}}, "20")) return;
        }
        picture_.AddRec({vertices[0], vertices[2]});
    }

    void ReadDxfDimension() {
        DimensionItem mark;
        TextItem text;
        const bool isWhole = ReadGroups({{"13", &mark.p1.x},
                                         {"23", &mark.p1.y},
                                         {"14", &mark.p2.x},
                                         {"24", &mark.p2.y},
                                         {"10", &mark.p3.x},
                                         {"20", &mark.p3.y},
                                         {"11", &text.at.x},
                                         {"21", &text.at.y}},
                                        "24", &text.text);
        if (!isWhole) return;
        picture_.AddDim(mark);
        picture_.AddString(text);
    }

    std::string Decode(std::string_view text) const { return isUtf8_ ? std::string(text) : FromGbk(text); }

    TokenReader tokens_;
    bool isUtf8_;
    CPictire& picture_;
};

DxfSummary Summarise(const Survey& survey, const CPictire& picture) {
    DxfSummary summary;
    summary.lines = picture.Lines().Count();
    summary.rectangles = picture.Rectangles().Count();
    summary.dimensions = picture.Dimensions().Count();
    summary.texts = picture.Strings().Count();
    const std::map<std::string_view, int> taken{
        {"LINE", summary.lines}, {"LWPOLYLINE", summary.rectangles}, {"DIMENSION", summary.dimensions}};
    for (const auto& [kind, count] : survey.entities) {
        const auto came = taken.find(kind);
        const int left = came == taken.end() ? count : count - came->second;
        if (left > 0) summary.passedOver.push_back({kind, left});
    }
    std::stable_sort(summary.passedOver.begin(), summary.passedOver.end(),
                     [](const auto& a, const auto& b) { return a.count > b.count; });
    return summary;
}

}  // namespace

int DxfSummary::PassedOverCount() const {
    int count = 0;
    for (const Kind& kind : passedOver) count += kind.count;
    return count;
}

DxfSummary ImportDxf(const std::filesystem::path& path, CPictire& picture) {
    std::filebuf file = OpenDxf(path);
    return ImportDxf(file, picture);
}

DxfSummary ImportDxf(std::streambuf& file, CPictire& picture) {
    const Survey survey = SurveyDxf(file);
    file.pubseekpos(0, std::ios::in);
    picture.ClearData();
    const CPictire::FullNoticeLimit limit(picture);
    DxfReader(file, survey.isUtf8, picture).Run();
    return Summarise(survey, picture);
}

std::string DxfPrompt(const DxfSummary& summary) {
    std::string text = "导入直线 " + std::to_string(summary.lines) + "、矩形 " +
                       std::to_string(summary.rectangles) + "、标注 " + std::to_string(summary.dimensions) +
                       "、文字 " + std::to_string(summary.texts);
    if (summary.passedOver.empty()) return text + "；没有略过的图元";
    text += "；略过 " + std::to_string(summary.PassedOverCount()) + " 个图元：";
    for (std::size_t i = 0; i < summary.passedOver.size(); ++i) {
        if (i == kKindsInPrompt) return text + " 等";
        const DxfSummary::Kind& kind = summary.passedOver[i];
        text += (i == 0 ? "" : "、") + kind.name + " " + std::to_string(kind.count);
    }
    return text;
}

}  // namespace kalvane
