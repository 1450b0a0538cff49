#include "project/screens/project_papers.h"

#include "page/paint_report.h"
#include "project/contract.h"
#include "project/window_list.h"
#include "session/app_state.h"
#include "ui/message_notice.h"
#include "ui/page_output.h"
#include "ui/report_sheet.h"
#include "ui/text.h"

namespace kalvane {

void PrintContract(QWidget* parent, const Project& project) {
    const Report contract = ContractReport(App().Main(), project.number);
    PrintDocument(parent, QStringLiteral("工程合同 ") + ToQt(project.name), kReportSheet,
                  [&](PageTarget& page) { PaintReport(page, contract); });
}

void PrintWindowList(QWidget* parent, const Project& project, std::span<const WindowEntry> windows) {
    const WindowList list = MakeWindowList(App().Main(), project.name, windows);
    MessageNotice notice(parent);
    PrintDocument(parent, QStringLiteral("门窗表 ") + ToQt(project.name), kReportSheet,
                  [&](PageTarget& page) { PaintWindowList(page, App().Main(), list, notice); });
}

void PrintContractAndWindows(QWidget* parent, const Project& project) {
    const Report contract = ContractReport(App().Main(), project.number);
    const WindowList list =
        MakeWindowList(App().Main(), project.name, ListWindows(App().Main(), project.number));
    MessageNotice notice(parent);
    PrintDocument(parent, QStringLiteral("合同及门窗表 ") + ToQt(project.name), kReportSheet,
                  [&](PageTarget& page) {
                      PaintReport(page, contract);
                      PaintWindowList(page, App().Main(), list, notice);
                  });
}

}  // namespace kalvane
