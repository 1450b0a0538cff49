#include "wind/wind_document.h"

#include "page/inset_page.h"
#include "page/paint_report.h"
#include "platform/files.h"
#include "wind/verdict.h"
#include "wind/wind_pages.h"

namespace kalvane {
namespace {

constexpr float kMargin = 850;  // twips, of the tables
const std::string kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kAnnexTitle = "附：复核";

/// The verdict of the re-check as a whole, beside the report's verdicts.
std::string RecheckVerdict(const Recheck& recheck) {
    const std::string verdict = VerdictWord(recheck.Passes());
    return recheck.Differs() ? verdict + "（与报告不同）" : verdict;
}

bool HasHead(const CheckRun& run) {
    return run.checks.size() + run.skipped.size() > 1;
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
    const std::string outcome =
        check.recheck.Differs() ? "有与报告不同的结论，请按复核判断是否安全。" : "结论与报告相同。";
    report.heading.push_back({"按同样的规范、用一致的单位（N、mm）再算一遍。" + outcome});
    report.columns = {{"项目", 1.3F}, {"公式", 2.0F}, {"代入", 2.6F},
                      {"结果", 2.0F}, {"限值", 1.6F}, {"结论", 1.4F}};
    for (const RecheckRow& row : check.recheck.rows) {
        report.rows.push_back(
            {row.check, row.formula, row.numbers, row.ResultText(), row.LimitText(), row.VerdictText()});
    }
    for (const std::string& warning : check.recheck.warnings) report.closing.push_back({"注意：" + warning});
    return report;
}

Report VerdictTable(const CheckRun& run) {
    Report report;
    report.title = "校核结论";
    report.columns = {{"序号", 0.6F, ReportAlign::Centre}, {"门窗", 2.5F}};
    for (const WindowCheck::Verdict& verdict : run.checks.front().verdicts) {
        report.columns.push_back({verdict.check, 1, ReportAlign::Centre});
    }
    report.columns.push_back({"复核", 1.4F, ReportAlign::Centre});
    for (const WindowCheck& check : run.checks) {
        std::vector<std::string> row = {std::to_string(report.rows.size() + 1), check.window};
        for (const WindowCheck::Verdict& verdict : check.verdicts) row.push_back(VerdictWord(verdict.passes));
        row.push_back(RecheckVerdict(check.recheck));
        report.rows.push_back(std::move(row));
    }
    for (const std::string& skipped : run.skipped) report.closing.push_back({"未校核：" + skipped});
    return report;
}

void PaintCheckRun(PageTarget& page, const CheckRun& run, bool hasAnnex) {
    InsetPage table(page, kMargin);
    if (HasHead(run)) PaintReport(table, VerdictTable(run));
    for (const WindowCheck& check : run.checks) {
        if (check.isSliding) {
            PaintSlidingReport(page, check.lines);
        } else {
            PaintFullReport(page, check.lines);
        }
        if (hasAnnex) PaintReport(table, RecheckAnnex(check));
    }
}

std::string CheckRunText(const CheckRun& run, bool hasAnnex) {
    std::string text;
    if (HasHead(run)) text += ReportText(VerdictTable(run)) + "\r\n";
    for (const WindowCheck& check : run.checks) {
        text += JoinedLines(check.lines);
        if (hasAnnex) text += "\r\n" + ReportText(RecheckAnnex(check)) + "\r\n";
    }
    return text;
}

void SaveCheckRunText(const std::filesystem::path& file, const CheckRun& run, bool hasAnnex) {
    WriteFileAtomically(file, kByteOrderMark + CheckRunText(run, hasAnnex));
}

}  // namespace kalvane
