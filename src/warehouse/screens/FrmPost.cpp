#include "warehouse/screens/FrmPost.h"

#include <QPushButton>

#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "warehouse/screens/FrmPostData.h"
#include "warehouse/screens/frmGCLL.h"

namespace kalvane {

FrmPost::FrmPost(const std::string& number, QWidget* parent, ProjectNeeds needs)
    : NoteScreen(NoteKind::Out, number, parent), needs_(std::move(needs)) {
    QPushButton* project = MakeButton("CmdGCLL", QStringLiteral("&G 按工程领料"), this,
                                      QStringLiteral("按工程的用料列出要领的材料"));
    project->setEnabled(needs_.list != nullptr);
    LayOut({project});
    OnSignal(AddButton(), &QPushButton::clicked, this,
             [this] { FrmPostData([this](const NoteLine& line) { AddLine(line); }, this).exec(); });
    OnSignal(project, &QPushButton::clicked, this, [this] { OfferForProject(); });
}

void FrmPost::OfferForProject() {
    frmGCLL offer(needs_, Entered().lines, this);
    if (offer.exec() == QDialog::Accepted) AddLines(offer.Chosen());
}

}  // namespace kalvane
