#include "warehouse/screens/FrmEnter.h"

#include <QPushButton>

#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "warehouse/screens/goods_in_line.h"

namespace kalvane {

FrmEnter::FrmEnter(const std::string& number, QWidget* parent) : NoteScreen(NoteKind::In, number, parent) {
    QPushButton* edit = MakeButton("CmdEdit", QStringLiteral("&E 编辑"), this, QStringLiteral("F2 或双击"));
    LayOut({edit});
    PressOnKeys(&Lines(), Qt::Key_F2, edit);
    OnEnter(&Lines(), [edit] { edit->click(); });
    OnSignal(AddButton(), &QPushButton::clicked, this, [this] { Add(); });
    OnSignal(edit, &QPushButton::clicked, this, [this] { Edit(); });
    OnSignal(&Lines(), &ReportList::itemDoubleClicked, this, [edit] { edit->click(); });
}

void FrmEnter::Add() {
    if (const auto line = EnterGoodsInLine(this, {})) AddLine(*line);
}

void FrmEnter::Edit() {
    const int row = Lines().SelectedOrTell(QStringLiteral("无选取您要编辑的记录!"));
    if (row < 0) return;
    if (const auto line = EnterGoodsInLine(this, LineAt(row))) SetLine(row, *line);
}

}  // namespace kalvane
