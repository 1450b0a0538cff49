#include "design/screens/macro_form.h"

#include <QLineEdit>

#include "session/app_state.h"
#include "ui/entry_form.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr std::size_t kPreviewLines = 5;

MacroValues ValuesOf(const QStringList& texts) {
    MacroValues values;
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = FromQt(texts[static_cast<qsizetype>(i)]);
    return values;
}

}  // namespace

std::optional<MacroValues> AskMacroValues(const FormulaLists& lists, QWidget* parent) {
    std::vector<EntryBox> boxes;
    for (std::size_t i = 0; i < kMacroCodes.size(); ++i) {
        boxes.push_back({.name = QStringLiteral("Text1(%1)").arg(i),
                         .caption = QString::fromUtf8(kMacroCodes[i].caption),
                         .slot = i,
                         .keys = NumberKeys::Decimal,
                         .mayBeEmpty = true});
    }
    EntryForm form(QStringLiteral("frmMacroReplace"), QStringLiteral("宏替换----单位为毫米（mm）"), boxes,
                   SharedFieldSlots(), parent);
    for (std::size_t i = 0; i < kMacroCodes.size(); ++i) {
        form.Box(static_cast<qsizetype>(i))
            ->setToolTip(QStringLiteral("公式中的 %1").arg(QString::fromUtf8(kMacroCodes[i].code)));
    }
    form.SetCaptions(QStringLiteral("替换"), QStringLiteral("取消 &C"));
    form.AddNote([&form, &lists] {
        return ToQt(ChangeSummary(ChangesBetween(lists, MacroReplaced(lists, ValuesOf(form.Texts()))),
                                  kPreviewLines));
    });
    if (!form.Run()) return std::nullopt;
    return ValuesOf(form.Texts());
}

}  // namespace kalvane
