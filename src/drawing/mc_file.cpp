#include "drawing/mc_file.h"

#include <array>
#include <sstream>
#include <type_traits>
#include <utility>

#include "drawing/cpictire.h"
#include "drawing/token_reader.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

class Writer {
  public:
    /// The items of one kind below their keyword; nothing for a kind without items.
    template <typename Item>
    void Items(std::string_view keyword, const PrimitiveList<Item>& items) {
        if (!items.Empty()) Value(keyword);
        for (const Item& item : items) {
            for (const Point& point : item.Points()) {
                Number(point.x);
                Number(point.y);
            }
            if constexpr (std::is_same_v<Item, TextItem>) Value(item.text);
        }
    }

    std::string Take() { return std::move(text_); }

  private:
    void Value(std::string_view text) { text_.append(text).append(kLineEnd); }

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
    writer.Items("Line", picture.Lines());
    writer.Items("Rec", picture.Rectangles());
    writer.Items("Dir", picture.Arrows());
    writer.Items("Dim", picture.Dimensions());
    writer.Items("String", picture.Strings());
    return writer.Take();
}

void ReadMcText(std::string_view utf8, CPictire& picture) {
    std::stringbuf text{std::string(utf8), std::ios::in};
    Reader(text, picture).Run();
}

}  // namespace kalvane
