#pragma once

#include <string>
#include <vector>

namespace kalvane {

enum class ReportAlign { Left, Centre, Right };

struct ReportColumn {
    std::string head;
    float share = 1;  ///< of the page's width, beside the other columns' shares
    ReportAlign align = ReportAlign::Left;
    std::string group{};  ///< a head over this one; neighbours with the same text share it
};

/// Texts side by side, each with the same part of the page's width.
using ReportLine = std::vector<std::string>;

/// A printed report in bands: title and heading, a ruled table whose column heads are repeated on every page,
/// a row of totals, and a closing block. The title and "第 n 页，共 m 页" are printed at the foot of each
/// page. A band that is empty is left out; a text document, such as a contract, has closing lines only.
struct Report {
    std::string title;
    std::vector<ReportLine> heading;
    /// Opens each further page: what a loose sheet must say of itself, such as the project.
    std::vector<ReportLine> repeated;
    std::vector<ReportColumn> columns;
    /// As many texts in each as there are columns. Long texts wrap in their cell.
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> totals;
    std::vector<ReportLine> closing;
};

}  // namespace kalvane
