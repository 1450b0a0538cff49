#include "drawing/mc_file.h"

#include <array>
#include <initializer_list>
#include <sstream>
#include <utility>

#include "drawing/cpictire.h"
#include "drawing/token_reader.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

class Writer {
  public:
    void Value(std::string_view text) { text_.append(text).append(kLineEnd); }

    void Numbers(std::initializer_list<Point> points) {
        for (const Point& point : points) {
            Number(point.x);
            Number(point.y);
        }
    }

    std::string Take() { return std::move(text_); }

  private:
    void Number(float value) {
        const std::string digits = ShortText(value);
        Value((digits.front() == '-' ? "" : " ") + digits + " ");
    }

    std::string text_;
};

enum class Section { Line, Rectangle, Arrow, Dimension, String, Arc };

struct Keyword {
    std::string_view text;
    Section section;
};

constexpr Keyword kKeywords[] = {{"Line", Section::Line},     {"Rec", Section::Rectangle},
                                 {"Dir", Section::Arrow},     {"Dim", Section::Dimension},
                                 {"String", Section::String}, {"Arc", Section::Arc}};

class Reader {
  public:
    Reader(std::streambuf& text, CPictire& picture) : tokens_(text), picture_(picture) {}

    void Run() {
        while (!tokens_.AtEnd()) {
            const std::string_view token = tokens_.Next();
            if (!IsSkipped(token)) Take(token);
        }
    }

  private:
    /// Enters the section of a keyword. "Arc" does too, but is then taken for a number and fails.
    bool IsSkipped(std::string_view token) {
        if (token == "Circle") return true;
        for (const Keyword& keyword : kKeywords) {
            if (token != keyword.text) continue;
            section_ = keyword.section;
            field_ = 0;
            return section_ != Section::Arc;
        }
        return false;
    }

    void Take(std::string_view token) {
        if (section_ == Section::String && field_ == 2) {
            picture_.AddString({At(0), std::string(token)});
            field_ = 0;
            return;
        }
        numbers_[field_] = tokens_.ToFloat(token);
        ++field_;
        const bool threePoints = section_ == Section::Dimension || section_ == Section::Arc;
        if (section_ != Section::String && field_ == (threePoints ? 6U : 4U)) {
            AddRecord();
            field_ = 0;
        }
    }

    void AddRecord() {
        switch (section_) {
            case Section::Line:
                picture_.AddLine({At(0), At(1)});
                break;
            case Section::Rectangle:
                picture_.AddRec({At(0), At(1)});
                break;
            case Section::Arrow:
                picture_.AddDir({At(0), At(1)});
                break;
            case Section::Dimension:
                picture_.AddDim({At(0), At(1), At(2)});
                break;
            case Section::Arc:
                picture_.AddArc({At(0), At(1), At(2)});
                break;
            case Section::String:
                break;
        }
    }

    Point At(std::size_t point) const { return {numbers_[2 * point], numbers_[2 * point + 1]}; }

    TokenReader tokens_;
    CPictire& picture_;
    Section section_ = Section::Line;
    std::size_t field_ = 0;
    std::array<float, 6> numbers_{};
};

}  // namespace

std::string McText(const CPictire& picture) {
    Writer writer;
    if (!picture.Lines().Empty()) writer.Value("Line");
    for (const LineItem& item : picture.Lines()) writer.Numbers({item.p1, item.p2});
    if (!picture.Rectangles().Empty()) writer.Value("Rec");
    for (const RectangleItem& item : picture.Rectangles()) writer.Numbers({item.p1, item.p2});
    if (!picture.Arrows().Empty()) writer.Value("Dir");
    for (const ArrowItem& item : picture.Arrows()) writer.Numbers({item.p1, item.p2});
    if (!picture.Dimensions().Empty()) writer.Value("Dim");
    for (const DimensionItem& item : picture.Dimensions()) writer.Numbers({item.p1, item.p2, item.p3});
    if (!picture.Strings().Empty()) writer.Value("String");
    for (const TextItem& item : picture.Strings()) {
        writer.Numbers({item.at});
        writer.Value(item.text);
    }
    return writer.Take();
}

void ReadMcText(std::string_view utf8, CPictire& picture) {
    std::stringbuf text{std::string(utf8), std::ios::in};
    Reader(text, picture).Run();
}

}  // namespace kalvane
