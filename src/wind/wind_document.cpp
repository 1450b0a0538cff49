#include "wind/wind_document.h"

#include "page/paint_report.h"
#include "wind/verdict.h"
#include "wind/wind_pages.h"

namespace kalvane {
namespace {

constexpr const char* kAnnexTitle = "附：复核";
constexpr const char* kSame = "与报告的结论相同";

/// The verdict of the re-check as a whole, beside the report's verdicts.
std::string RecheckVerdict(const Recheck& recheck) {
    const std::string verdict = VerdictWord(recheck.Passes());
    return recheck.Differs() ? verdict + "（与报告不同）" : verdict;
}

std::string Separated(const std::vector<std::string>& cells) {
    std::string line;
    for (const std::string& cell : cells) line += (line.empty() ? "" : "\t") + cell;
    return line + "\r\n";
}

std::string ReportText(const Report& report) {
    std::string text = report.title + "\r\n";
    for (const ReportLine& line : report.heading) text += Separated(line);
    std::vector<std::string> heads;
    for (const ReportColumn& column : report.columns) heads.push_back(column.head);
    text += Separated(heads);
    for (const auto& row : report.rows) text += Separated(row);
    for (const ReportLine& line : report.closing) text += Separated(line);
    return text;
}

}  // namespace

Report RecheckAnnex(const WindowCheck& check) {
    Report report;
    report.title = kAnnexTitle;
    if (!check.window.empty()) report.heading.push_back({"门窗：" + check.window});
    report.heading.push_back({std::string("按同样的规范、用一致的单位（N、mm）再算一遍。") +
                              (check.recheck.Differs() ? "下面有与报告不同的结论，请以复核为准判断是否安全。"
                                                       : kSame + std::string("。"))});
    report.columns = {{"项目", 1.5F}, {"公式", 2.2F}, {"代入", 3},
                      {"结果", 1.5F}, {"限值", 1.2F}, {"结论", 1.4F}};
    for (const RecheckRow& row : check.recheck.rows) {
        report.rows.push_back(
            {row.check, row.formula, row.numbers, row.ResultText(), row.LimitText(), row.VerdictText()});
    }
    for (const std::string& warning : check.recheck.warnings) report.closing.push_back({"注意：" + warning});
    return report;
}

Report VerdictTable(const std::vector<WindowCheck>& checks) {
    Report report;
    report.title = "校核结论";
    report.columns = {{"序号", 0.6F, ReportAlign::Centre}, {"门窗", 2.5F}};
    for (const WindowCheck::Verdict& verdict : checks.front().verdicts) {
        report.columns.push_back({verdict.check, 1, ReportAlign::Centre});
    }
    report.columns.push_back({"复核", 1.4F, ReportAlign::Centre});
    for (const WindowCheck& check : checks) {
        std::vector<std::string> row = {std::to_string(report.rows.size() + 1), check.window};
        for (const WindowCheck::Verdict& verdict : check.verdicts) row.push_back(VerdictWord(verdict.passes));
        row.push_back(RecheckVerdict(check.recheck));
        report.rows.push_back(std::move(row));
    }
    return report;
}

void PaintWindowChecks(PageTarget& page, const std::vector<WindowCheck>& checks, bool hasAnnex) {
    if (checks.size() > 1) PaintReport(page, VerdictTable(checks));
    for (const WindowCheck& check : checks) {
        if (check.isSliding) {
            PaintSlidingReport(page, check.lines);
        } else {
            PaintFullReport(page, check.lines);
        }
        if (hasAnnex) PaintReport(page, RecheckAnnex(check));
    }
}

std::string WindowChecksText(const std::vector<WindowCheck>& checks, bool hasAnnex) {
    std::string text;
    if (checks.size() > 1) text += ReportText(VerdictTable(checks)) + "\r\n";
    for (const WindowCheck& check : checks) {
        text += JoinedLines(check.lines);
        if (hasAnnex) text += "\r\n" + ReportText(RecheckAnnex(check)) + "\r\n";
    }
    return text;
}

}  // namespace kalvane
