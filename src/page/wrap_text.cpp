#include "page/wrap_text.h"

#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr std::string_view kClosingMarks = "，。、；：！？）》」』】”’％·…";
constexpr std::string_view kOpeningMarks = "（《「『【“‘";
/// A break behind these keeps the terms of a pattern or a path whole.
constexpr std::string_view kDividers = "+,;/|";

/// Chinese characters and marks, full-width forms: all of three bytes from U+2E80 on, or of four.
bool IsWide(std::string_view character) {
    return character >= std::string_view("\xE2\xBA\x80");
}

bool IsOneOf(std::string_view marks, std::string_view character) {
    return character.size() > 1 && marks.find(character) != std::string_view::npos;
}

bool MayBreakBetween(std::string_view before, std::string_view after) {
    if (IsOneOf(kClosingMarks, after) || IsOneOf(kOpeningMarks, before)) return false;
    if (after == " ") return false;  // blanks end the word they follow
    return before == " " || IsWide(before) || IsWide(after) ||
           kDividers.find(before) != std::string_view::npos;
}

/// Length of the longest beginning of `text` without a place to break.
std::size_t WordLength(std::string_view text) {
    std::string_view before = LeftChars(text, 1);
    std::size_t length = before.size();
    while (length < text.size()) {
        const std::string_view after = LeftChars(text.substr(length), 1);
        if (MayBreakBetween(before, after)) break;
        length += after.size();
        before = after;
    }
    return length;
}

class Wrapper {
  public:
    Wrapper(const PageTarget& page, float width) : page_(page), width_(width) {}

    void Paragraph(std::string_view text) {
        if (page_.TextWidth(text) <= width_) {
            lines_.emplace_back(text);
            return;
        }
        while (!text.empty()) {
            const std::string_view word = text.substr(0, WordLength(text));
            Word(word);
            text.remove_prefix(word.size());
        }
        EndLine();
    }

    std::vector<std::string> Take() { return std::move(lines_); }

  private:
    void Word(std::string_view word) {
        const float full = page_.TextWidth(word);
        // Blanks behind a word may run over the edge.
        const float visible = word.back() == ' ' ? page_.TextWidth(Trim(word)) : full;
        if (used_ + visible > width_ && !line_.empty()) EndLine();
        if (visible <= width_) {
            line_ += word;
            used_ += full;
        } else {
            Characters(word);
        }
    }

    void Characters(std::string_view word) {
        while (!word.empty()) {
            const std::string_view character = LeftChars(word, 1);
            word.remove_prefix(character.size());
            const float width = page_.TextWidth(character);
            if (used_ + width > width_ && !line_.empty()) {
                EndLine();
                if (character == " ") continue;
            }
            line_ += character;
            used_ += width;
        }
    }

    void EndLine() {
        while (!line_.empty() && line_.back() == ' ') line_.pop_back();
        lines_.push_back(std::move(line_));
        line_.clear();
        used_ = 0;
    }

    const PageTarget& page_;
    float width_;
    std::vector<std::string> lines_;
    std::string line_;
    float used_ = 0;
};

}  // namespace

std::vector<std::string> WrapText(const PageTarget& page, std::string_view utf8, float width) {
    Wrapper wrapper(page, width);
    for (;;) {
        const std::size_t end = utf8.find_first_of("\r\n");
        wrapper.Paragraph(utf8.substr(0, end));
        if (end == std::string_view::npos) return wrapper.Take();
        utf8.remove_prefix(end + (utf8.substr(end, 2) == "\r\n" ? 2 : 1));
    }
}

}  // namespace kalvane
