#include "wind/screens/recheck_panel.h"

#include "ui/text.h"

namespace kalvane {
namespace {

QString Escaped(const std::string& text) {
    return ToQt(text).toHtmlEscaped();
}

QString Line(const char* caption, const std::string& text) {
    if (text.empty()) return {};
    return QStringLiteral("<br>%1：%2").arg(QString::fromUtf8(caption), Escaped(text));
}

QString Verdict(const RecheckRow& row) {
    const std::string text = row.VerdictText();
    if (text.empty()) return {};
    const bool isRed = row.Differs() || !row.Passes().value_or(true);
    return QStringLiteral("<br>结论：<b><font color=\"%1\">%2</font></b>")
        .arg(isRed ? QStringLiteral("#c00000") : QStringLiteral("#1c7c3c"), Escaped(text));
}

}  // namespace

RecheckPanel::RecheckPanel(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("rtFH"));
}

void RecheckPanel::Show(const Recheck& recheck) {
    QString html =
        QStringLiteral("<h3>复核</h3><p>按同样的规范、用一致的单位（N、mm）再算一遍，与报告的结论对照。</p>");
    if (recheck.Differs()) {
        html += QStringLiteral(
            "<p><b><font color=\"#c00000\">有与报告不同的结论，请按复核判断是否安全。</font></b></p>");
    }
    for (const RecheckRow& row : recheck.rows) {
        html += QStringLiteral("<p><b>%1</b>").arg(Escaped(row.check)) + Line("公式", row.formula) +
                Line("代入", row.numbers) + Line("结果", row.ResultText()) + Line("限值", row.LimitText()) +
                Verdict(row) + QStringLiteral("</p>");
    }
    if (!recheck.warnings.empty()) html += QStringLiteral("<p><b>注意</b></p><ul>");
    for (const std::string& warning : recheck.warnings)
        html += QStringLiteral("<li>%1</li>").arg(Escaped(warning));
    if (!recheck.warnings.empty()) html += QStringLiteral("</ul>");
    setHtml(html);
}

}  // namespace kalvane
