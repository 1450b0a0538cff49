#include "warehouse/screens/note_questions.h"

#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/dialogs.h"
#include "ui/text.h"
#include "warehouse/goods_notes.h"
#include "warehouse/screens/note_head.h"
#include "warehouse/stock_shortage.h"

namespace kalvane {

bool RefuseIncomplete(QWidget* screen, NoteKind kind, const GoodsNote& note, const NoteHead& head,
                      QWidget* add) {
    QWidget* gap = nullptr;
    if (const NoteField* field = FirstEmptyField(kind, note)) {
        gap = head.Box(*field);
    } else if (note.lines.empty()) {
        gap = add;
    }
    if (gap != nullptr) TellAt(screen, ToQt(kIncompleteNote), gap);
    return gap != nullptr;
}

bool TakeFreeNumber(QWidget* screen, NoteKind kind, GoodsNote& note) {
    Connection& stock = App().Stock();
    if (!RowExists(stock, LayoutOf(kind).table, "单据编号", note.number, "N")) return true;
    const std::string next = kind == NoteKind::In ? NextEnterNo(stock) : NextPostNo(stock);
    if (!Ask(screen, QStringLiteral("编号 %1 已被另一张单据使用。用编号 %2 保存这张单据吗？")
                         .arg(ToQt(note.number), ToQt(next)))) {
        return false;
    }
    note.number = next;
    return true;
}

bool IsShortageWanted(QWidget* screen, NoteKind kind, const GoodsNote& note) {
    if (kind == NoteKind::In) return true;
    const std::vector<Shortage> shortages = FindShortages(App().Stock(), note.lines);
    return shortages.empty() ||
           AskToLose(screen, QStringLiteral("下面的材料出库后库存量将小于零：\n%1\n仍要出库吗？")
                                 .arg(ToQt(ShortageText(shortages))));
}

}  // namespace kalvane
