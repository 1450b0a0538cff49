#include "warehouse/screens/note_paper.h"

#include <QComboBox>

#include "session/app_state.h"
#include "ui/report_output.h"
#include "ui/screen_memory.h"
#include "warehouse/note_reports.h"

namespace kalvane {
namespace {
const QString kPaperKey = QStringLiteral("note.paper");
}  // namespace

QComboBox* MakePaperBox(QWidget* screen) {
    auto* paper = new QComboBox(screen);
    paper->setObjectName(QStringLiteral("CmbPaper"));
    paper->addItems({QStringLiteral("A4"), QStringLiteral("A5 横向")});  // in the order of ReportPaper
    paper->setToolTip(QStringLiteral("打印用纸"));
    paper->setCurrentIndex(Remembered(kPaperKey, {}).toInt());
    return paper;
}

void PrintNote(QWidget* screen, NoteKind kind, const std::string& number, const QComboBox& paper) {
    Remember(kPaperKey, QString::number(paper.currentIndex()));
    PrintReport(screen, NoteReport(App().Stock(), kind, number),
                static_cast<ReportPaper>(paper.currentIndex()));
}

}  // namespace kalvane
