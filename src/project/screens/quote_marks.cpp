#include "project/screens/quote_marks.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include "ui/dialogs.h"

namespace kalvane {
namespace {

const QLatin1Char kQuote('\'');

void Mark(QWidget* box) {
    const bool holdsQuote = TextOfBox(box).contains(kQuote);
    box->setStyleSheet(holdsQuote ? QStringLiteral("background-color: #ffd7d7;") : QString());
    box->setToolTip(holdsQuote ? QStringLiteral("文字里不能有单引号（'）") : QString());
}

}  // namespace

QString TextOfBox(const QWidget* box) {
    if (const auto* line = qobject_cast<const QLineEdit*>(box)) return line->text();
    return static_cast<const QPlainTextEdit*>(box)->toPlainText();
}

void QuoteMarks::Watch(QWidget* box) {
    boxes_.push_back(box);
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        QObject::connect(line, &QLineEdit::textChanged, box, [box] { Mark(box); });
    } else {
        QObject::connect(static_cast<QPlainTextEdit*>(box), &QPlainTextEdit::textChanged, box,
                         [box] { Mark(box); });
    }
}

bool QuoteMarks::MaySave(QWidget* screen) const {
    for (QWidget* box : boxes_) {
        if (!TextOfBox(box).contains(kQuote)) continue;
        const bool saves = AskToLose(
            screen, QStringLiteral("标红的文字里有单引号（'），存储会被拒绝，而原来存储的一份会先被删除。\n"
                                   "仍要存储吗？"));
        if (!saves) box->setFocus();
        return saves;
    }
    return true;
}

}  // namespace kalvane
