#include "warehouse/screens/FrmPost.h"

#include <QPushButton>

#include "ui/guard.h"
#include "warehouse/screens/FrmPostData.h"

namespace kalvane {

FrmPost::FrmPost(const std::string& number, QWidget* parent) : NoteScreen(NoteKind::Out, number, parent) {
    LayOut({});
    OnSignal(AddButton(), &QPushButton::clicked, this,
             [this] { FrmPostData([this](const NoteLine& line) { AddLine(line); }, this).exec(); });
}

}  // namespace kalvane
