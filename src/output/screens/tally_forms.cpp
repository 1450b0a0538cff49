#include "output/screens/tally_forms.h"

#include "output/settlement.h"
#include "session/app_state.h"
#include "ui/entry_form.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr qsizetype kNamesShown = 40;

EntryBox NumberBox(std::size_t index, const QString& caption) {
    return {QStringLiteral("Text1(%1)").arg(index), caption, index, NumberKeys::Decimal};
}

/// The names of the windows that are paid as doors, or those that are not.
QString Names(std::span<const WindowEntry> windows, bool doors) {
    QStringList names;
    for (const WindowEntry& window : windows) {
        if (CountsAsDoor(window.name) == doors) names << ToQt(window.name);
    }
    const qsizetype count = names.size();
    QString text = QStringList(names.mid(0, kNamesShown)).join(QStringLiteral("、"));
    if (count > kNamesShown) text += QStringLiteral(" 等");
    return QStringLiteral("%1（%2 种）").arg(count == 0 ? QStringLiteral("无") : text).arg(count);
}

}  // namespace

void AskFees(QWidget* parent) {
    const QStringList captions{QStringLiteral("人工费  /平方:"), QStringLiteral("税费    /平方:"),
                               QStringLiteral("运输费  /平方:"), QStringLiteral("其它费用/平方:")};
    std::vector<EntryBox> boxes;
    for (const QString& caption : captions) boxes.push_back(NumberBox(boxes.size(), caption));
    EntryForm form(QStringLiteral("frmSZZJ"), QStringLiteral("门窗造价设置表"), boxes, SharedFieldSlots(),
                   parent);
    form.Fill(QStringList(captions.size()));  // the first box takes the focus
    if (form.Run()) return;
    for (const EntryBox& box : boxes) SharedFieldSlots()[box.slot] = "0";
}

bool AskSettlementPrices(QWidget* parent, std::span<const WindowEntry> windows) {
    EntryForm form(QStringLiteral("frmJSJE"), QStringLiteral("决算金额"),
                   {NumberBox(0, QStringLiteral("门综合价 ：")), NumberBox(1, QStringLiteral("窗综合价 ："))},
                   SharedFieldSlots(), parent);
    form.AddNote(QStringLiteral("名称中有“门”字的按门计价：") + Names(windows, true));
    form.AddNote(QStringLiteral("其余的按窗计价：") + Names(windows, false));
    form.Fill({QString(), QString()});  // the first box takes the focus
    return form.Run();
}

}  // namespace kalvane
