#include "ui/report_output.h"

#include "page/paint_report.h"
#include "ui/page_output.h"
#include "ui/text.h"

namespace kalvane {

bool PrintReport(QWidget* parent, const Report& report) {
    const PageSetup sheet{QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 12}};
    return PrintDocument(parent, ToQt(report.title), sheet,
                         [&](PageTarget& page) { PaintReport(page, report); });
}

}  // namespace kalvane
