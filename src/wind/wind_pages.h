#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "page/page_target.h"

namespace kalvane {

/// Margins of the full report on a page of that size, in twips.
struct FullPageMetrics {
    float left = 0;
    float top = 0;
    float bottom = 0;  ///< where a page ends
    static FullPageMetrics Of(float width, float height);
};

/// Where a line of the report stands.
struct PlacedLine {
    int page = 1;
    std::size_t line = 0;  ///< from 1
    float y = 0;           ///< of its upper edge, twips
};

/// Distributes `count` lines of one height to pages.
std::vector<PlacedLine> PlaceLines(const FullPageMetrics& metrics, float textHeight, std::size_t count);

/// Prints the lines of the full report, each page with its number at the foot, as one document.
void PaintFullReport(PageTarget& page, const std::vector<std::string>& lines);

/// Prints the lines of a sliding window's report as one document: the title and the lines below it in their
/// sizes, tabs of half an inch. A line too long for the page goes on at its indent.
void PaintSlidingReport(PageTarget& page, const std::vector<std::string>& lines);

/// What stands on the cover besides its fixed texts.
struct CoverTexts {
    std::string project;
    std::string checker;
    std::string reviewer;
    std::string unit;
    std::string date;
};

/// Prints the cover on one page, as one document.
void PaintCover(PageTarget& page, const CoverTexts& cover);

/// `year`年`month`月`day`日, without blanks and leading zeros.
std::string CoverDate(int year, int month, int day);

}  // namespace kalvane
