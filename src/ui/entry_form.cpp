#include "ui/entry_form.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "numeric/assertion.h"
#include "numeric/error.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 320;
}  // namespace

EntryForm::EntryForm(const QString& name, const QString& title, std::vector<EntryBox> boxes,
                     FieldSlots& slots, QWidget* parent)
    : EntryScreen(name, title, parent),
      boxes_(std::move(boxes)),
      slots_(slots),
      fields_(new QFormLayout),
      promptTitle_(PromptTitle()),
      ok_(MakeButton("OKButton", QStringLiteral("确定 &Y"), this)),
      cancel_(MakeButton("CancelButton", QStringLiteral("取消 &C"), this)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    fields_->setSpacing(10);
    for (const EntryBox& box : boxes_) {
        controls_ << MakeControl(box);
        fields_->addRow(box.caption, controls_.back());
    }
    LayOutEntry(this, fields_, ok_, cancel_);

    for (qsizetype i = 0; i + 1 < controls_.size(); ++i) EnterMovesTo(controls_[i], controls_[i + 1]);
    OnEnter(controls_.back(), [this] { Confirm(); });
    OnSignal(ok_, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel_, &QPushButton::clicked, this, [this] { Leave(); });
    filled_ = Texts();
}

QWidget* EntryForm::MakeControl(const EntryBox& box) {
    if (!box.choices.isEmpty()) {
        auto* list = new QComboBox(this);
        list->setObjectName(box.name);
        list->addItems(box.choices);
        list->setCurrentIndex(-1);
        return list;
    }
    QLineEdit* line = MakeBox(box.name, this, kBoxWidth);
    connect(line, &QLineEdit::textChanged, this, &EntryForm::FollowNotes);
    if (box.keys != NumberKeys::Any) NumberFilter::Set(line, box.keys);
    if (box.longest > 0) line->setMaxLength(box.longest);
    return line;
}

QLineEdit* EntryForm::Box(qsizetype place) const {
    auto* line = qobject_cast<QLineEdit*>(controls_[place]);
    KALVANE_ASSERT(line != nullptr);
    return line;
}

QString EntryForm::TextOf(const QWidget* control) {
    if (const auto* list = qobject_cast<const QComboBox*>(control)) {
        return list->currentIndex() < 0 ? QString() : QString::number(list->currentIndex() + 1);
    }
    return static_cast<const QLineEdit*>(control)->text();
}

void EntryForm::Fill(const QStringList& texts) {
    KALVANE_ASSERT(texts.size() == controls_.size());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (auto* list = qobject_cast<QComboBox*>(controls_[i])) {
            list->setCurrentIndex(texts[i].toInt() - 1);
        } else {
            static_cast<QLineEdit*>(controls_[i])->setText(texts[i]);
        }
    }
    if (auto* first = qobject_cast<QLineEdit*>(controls_.front())) FocusAll(first);
    filled_ = Texts();
}

QStringList EntryForm::Texts() const {
    QStringList texts;
    for (const QWidget* control : controls_) texts << TextOf(control);
    return texts;
}

QLabel* EntryForm::MakeNote() {
    auto* note = new QLabel(this);
    note->setWordWrap(true);
    note->setTextFormat(Qt::PlainText);  // it may hold what was typed
    fields_->addRow(note);
    return note;
}

void EntryForm::AddNote(const QString& text) {
    MakeNote()->setText(text);
}

void EntryForm::AddNote(std::function<QString()> text) {
    following_.emplace_back(MakeNote(), std::move(text));
    FollowNotes();
}

void EntryForm::FollowNotes() {
    Guarded(this, [this] {
        for (const auto& [note, text] : following_) note->setText(text());
    });
}

void EntryForm::AddControl(QWidget* control) {
    fields_->addRow(control);
}

void EntryForm::SetCaptions(const QString& ok, const QString& cancel) {
    ok_->setText(ok);
    cancel_->setText(cancel);
}

bool EntryForm::Run(const std::function<void()>& save) {
    save_ = save;
    return exec() == Accepted;
}

bool EntryForm::RefuseEmpty() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        QWidget* control = controls_[static_cast<qsizetype>(i)];
        if (boxes_[i].mayBeEmpty || !TextOf(control).isEmpty()) continue;
        UseDialogs().Message(this, boxes_[i].complaint.isEmpty() ? promptText_ : boxes_[i].complaint,
                             promptTitle_, NoticeIcon::Information);
        control->setFocus();
        return true;
    }
    return false;
}

void EntryForm::Confirm() {
    if (RefuseEmpty()) return;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        slots_[boxes_[i].slot] = FromQt(TextOf(controls_[static_cast<qsizetype>(i)]));
    }
    try {
        save_();
    } catch (const ColumnError& refusal) {
        return ShowRefusal(refusal.what(), refusal.Column());
    } catch (const Error& refusal) {
        return ShowRefusal(refusal.what(), {});
    }
    accept();
}

void EntryForm::ShowRefusal(const std::string& text, const std::string& column) {
    UseDialogs().Message(this, ToQt(text), {}, NoticeIcon::Error);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        QWidget* control = controls_[static_cast<qsizetype>(i)];
        // A quote in a text is what breaks a statement.
        const bool isMeant =
            column.empty() ? TextOf(control).contains(QLatin1Char('\'')) : boxes_[i].column == ToQt(column);
        if (!isMeant) continue;
        control->setFocus();
        if (auto* line = qobject_cast<QLineEdit*>(control)) line->selectAll();
        return;
    }
}

}  // namespace kalvane
