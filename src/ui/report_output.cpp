#include "ui/report_output.h"

#include "page/paint_report.h"
#include "ui/page_output.h"
#include "ui/report_sheet.h"
#include "ui/text.h"

namespace kalvane {

bool PrintReport(QWidget* parent, const Report& report, ReportPaper paper) {
    const PageSetup& sheet = paper == ReportPaper::A4 ? kReportSheet : kSmallReportSheet;
    return PrintDocument(parent, ToQt(report.title), sheet,
                         [&](PageTarget& page) { PaintReport(page, report); });
}

}  // namespace kalvane
