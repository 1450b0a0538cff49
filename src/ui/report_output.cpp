#include "ui/report_output.h"

#include "page/paint_report.h"
#include "ui/page_output.h"
#include "ui/text.h"

namespace kalvane {

bool PrintReport(QWidget* parent, const Report& report, ReportPaper paper) {
    const PageSetup sheet = paper == ReportPaper::A4
                                ? PageSetup{QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 12}}
                                : PageSetup{QPageSize::A5, QPageLayout::Landscape, {12, 10, 12, 8}};
    return PrintDocument(parent, ToQt(report.title), sheet,
                         [&](PageTarget& page) { PaintReport(page, report); });
}

}  // namespace kalvane
