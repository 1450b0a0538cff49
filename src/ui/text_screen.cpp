#include "ui/text_screen.h"

#include <QPlainTextEdit>
#include <QPushButton>

#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/report_output.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(760, 560);
}  // namespace

TextScreen::TextScreen(const QString& name, const QString& title, const QString& text, QWidget* parent)
    : Screen(name, title, parent) {
    auto* box = new QPlainTextEdit(text, this);
    box->setObjectName(QStringLiteral("Text1"));
    box->setReadOnly(true);
    QPushButton* print = MakeButton("CmdPrint", QStringLiteral("打印 &P"), this);
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("退出 &E"), this);
    LayOutAboveButtons(this, box, {print, exit});
    exit->setDefault(true);
    box->setFocus();
    resize(kFirstSize);

    OnSignal(print, &QPushButton::clicked, this, [this, text] { Print(text); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { reject(); });
}

void TextScreen::Print(const QString& text) {
    Report report;
    report.title = FromQt(windowTitle());
    for (const QString& line : text.split(QLatin1Char('\n'))) report.closing.push_back({FromQt(line)});
    PrintReport(this, report);
}

}  // namespace kalvane
