#include "warehouse/screens/material_completion.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <memory>

#include "session/app_state.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "warehouse/material_proposals.h"

namespace kalvane {
namespace {

using Materials = std::shared_ptr<const std::vector<NoteLine>>;

QLineEdit* Box(const QWidget* form, const char* name) {
    return form->findChild<QLineEdit*>(QLatin1String(name));
}

void FillIfEmpty(QLineEdit* box, const std::string& text) {
    if (box->text().isEmpty()) box->setText(ToQt(text));
}

void Fill(QWidget* form, const NoteLine& material) {
    FillIfEmpty(Box(form, "TxtMC"), material.name);
    FillIfEmpty(Box(form, "TxtGG"), material.code);
    FillIfEmpty(Box(form, "TxtDW"), material.unit);
    FillIfEmpty(Box(form, "TxtDJ"), LastPrice(App().Stock(), material.code));
    auto* kinds = form->findChild<QComboBox*>(QStringLiteral("CmbZL"));
    if (kinds->currentIndex() < 0) kinds->setCurrentIndex(kinds->findText(ToQt(material.kind)));
}

/// While the list of proposals is open, Tab takes the only one of them, as it takes one that was chosen, and
/// ends the list, so that the box knows that its text is complete.
class TabTakesProposal : public QObject {
  public:
    TabTakesProposal(QCompleter* completer, QLineEdit* box) : QObject(box), completer_(completer), box_(box) {
        completer_->popup()->installEventFilter(this);
        box_->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !completer_->popup()->isVisible()) return false;
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Tab) return false;
        const QAbstractItemModel& proposals = *completer_->completionModel();
        if (proposals.rowCount() == 1) box_->setText(proposals.index(0, 0).data().toString());
        completer_->popup()->hide();
        return false;  // the key still leads to the next box
    }

  private:
    QCompleter* completer_;
    QLineEdit* box_;
};

/// Completes one box, and fills the others once its text names a material.
void Complete(QWidget* form, QLineEdit* box, std::string NoteLine::*member, const Materials& materials) {
    QStringList texts;
    for (const NoteLine& material : *materials) texts << ToQt(material.*member);
    texts.removeDuplicates();
    auto* completer = new QCompleter(texts, box);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    box->setCompleter(completer);
    new TabTakesProposal(completer, box);  // owned by the box
    OnSignal(box, &QLineEdit::editingFinished, form, [=] {
        const std::string text = FromQt(box->text());
        const auto isNamed = [&](const NoteLine& material) { return material.*member == text; };
        const auto found = std::find_if(materials->begin(), materials->end(), isNamed);
        if (found == materials->end()) return;
        // A name that several materials share says nothing about the rest.
        if (std::none_of(std::next(found), materials->end(), isNamed)) Fill(form, *found);
    });
}

}  // namespace

void CompleteMaterials(QWidget* form) {
    const auto materials = std::make_shared<const std::vector<NoteLine>>(
        ProposedMaterials(App().Stock(), App().mainConnection.get()));
    Complete(form, Box(form, "TxtMC"), &NoteLine::name, materials);
    Complete(form, Box(form, "TxtGG"), &NoteLine::code, materials);
}

}  // namespace kalvane
