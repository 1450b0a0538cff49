#include "wind/wind_pages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "page/wrap_text.h"
#include "wind/sliding_report.h"

namespace kalvane {
namespace {

constexpr PageFont kLineFont{9, false};
constexpr PageFont kSlidingTitleFont{kSlidingTitlePoints, false};
constexpr PageFont kSlidingBodyFont{kSlidingBodyPoints, false};
constexpr float kTab = 720;  // twips
constexpr PageFont kProjectFont{22, false};
constexpr PageFont kTitleFont{36, true};
constexpr PageFont kCoverFont{16, false};

/// From one line to the next.
float LineStep(float textHeight) {
    return textHeight + std::trunc(textHeight / 3);
}

void PaintCentred(PageTarget& page, float y, std::string_view text) {
    page.DrawText((page.Width() - page.TextWidth(text)) / 2, y, text);
}

void PaintFooter(PageTarget& page, const FullPageMetrics& metrics, int number) {
    PaintCentred(page, metrics.bottom + page.TextHeight("A"), "页:/" + std::to_string(number) + "/");
}

/// The characters of a UTF-8 text with a blank between each two.
std::string Spaced(std::string_view text) {
    std::string spaced;
    for (const char byte : text) {
        const bool begins = (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
        if (begins && !spaced.empty()) spaced += ' ';
        spaced += byte;
    }
    return spaced;
}

}  // namespace

FullPageMetrics FullPageMetrics::Of(float width, float height) {
    return {std::trunc(width / 8), std::trunc(height / 16), height - std::trunc(height / 9)};
}

std::vector<PlacedLine> PlaceLines(const FullPageMetrics& metrics, float textHeight, std::size_t count) {
    std::vector<PlacedLine> placed;
    PlacedLine next{1, 1, metrics.top};
    for (; next.line <= count; ++next.line) {
        if (next.y >= metrics.bottom) {
            next.y = metrics.top;
            ++next.page;
        }
        placed.push_back(next);
        next.y += LineStep(textHeight);
    }
    return placed;
}

void PaintFullReport(PageTarget& page, const std::vector<std::string>& lines) {
    page.SetFont(kLineFont);
    // A sheet given in millimetres, as A4 is, counts in whole twips.
    const auto metrics = FullPageMetrics::Of(std::round(page.Width()), std::round(page.Height()));
    int number = 1;
    for (const PlacedLine& placed : PlaceLines(metrics, page.TextHeight("A"), lines.size())) {
        if (placed.page > number) {
            PaintFooter(page, metrics, number);
            page.NewPage();
            number = placed.page;
        }
        const std::string& line = lines[placed.line - 1];
        if (!line.empty()) page.DrawText(metrics.left, placed.y, line);
    }
    PaintFooter(page, metrics, number);
    page.EndDocument();
}

void PaintSlidingReport(PageTarget& page, const std::vector<std::string>& lines) {
    const FullPageMetrics metrics = FullPageMetrics::Of(page.Width(), page.Height());
    const float left = metrics.top;
    float y = metrics.top;
    bool isTitle = true;  // until a line with a text has been printed
    for (const std::string& line : lines) {
        page.SetFont(isTitle ? kSlidingTitleFont : kSlidingBodyFont);
        const std::size_t tabs = std::min(line.find_first_not_of('\t'), line.size());
        const float x = left + kTab * static_cast<float>(tabs);
        const float height = page.TextHeight("A");
        for (const std::string& part : WrapText(page, line.substr(tabs), page.Width() - left - x)) {
            if (y + height > metrics.bottom) {
                page.NewPage();
                y = metrics.top;
            }
            if (!part.empty()) page.DrawText(x, y, part);
            y += height;
        }
        if (!line.empty()) isTitle = false;
    }
    page.EndDocument();
}

void PaintCover(PageTarget& page, const CoverTexts& cover) {
    page.SetFont(kProjectFont);
    float y = page.Height() / 10;
    for (const std::string& line : WrapText(page, Spaced(cover.project), page.Width() * 3 / 4)) {
        PaintCentred(page, y, line);
        y += LineStep(page.TextHeight("A"));
    }

    page.SetFont(kTitleFont);
    y = std::max(y, page.Height() / 5);
    for (const std::string_view character : {"门", "窗", "校", "核", "报", "告"}) {
        PaintCentred(page, y, character);
        y += LineStep(page.TextHeight("A"));
    }

    page.SetFont(kCoverFont);
    y = std::max(y, page.Height() * 3 / 4);
    const std::array<std::string, 4> lines = {"校       核：" + cover.checker,
                                              "审       核：" + cover.reviewer, "校 核 单 位：" + cover.unit,
                                              "校 核 日 期：" + cover.date};
    for (const std::string& line : lines) {
        page.DrawText(page.Width() / 4, y, line);
        y += LineStep(page.TextHeight("A"));
    }
    page.EndDocument();
}

std::string CoverDate(int year, int month, int day) {
    return std::to_string(year) + "年" + std::to_string(month) + "月" + std::to_string(day) + "日";
}

}  // namespace kalvane
