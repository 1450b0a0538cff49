#include "wind/screens/form_controls.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>

#include "numeric/assertion.h"
#include "ui/number_filter.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 150;
constexpr int kLinesHeight = 92;
}  // namespace

FormControls::FormControls(FormBoxes boxes, QWidget* screen) : QObject(screen), boxes_(boxes) {
    for (const FormBox& box : boxes) controls_.push_back(MakeControl(box, screen));
    Show(FormTexts(boxes));
}

QWidget* FormControls::MakeControl(const FormBox& box, QWidget* screen) {
    const QString name = ToQt(box.name);
    const auto filter = [&box](QLineEdit* line) {
        if (box.kind == BoxKind::Digits) NumberFilter::Set(line, NumberKeys::Digits);
        if (box.kind == BoxKind::Decimal || box.kind == BoxKind::EditableChoice) {
            NumberFilter::Set(line, NumberKeys::Decimal);
        }
    };
    if (box.kind == BoxKind::Lines) {
        auto* lines = new QPlainTextEdit(screen);
        lines->setObjectName(name);
        lines->setTabChangesFocus(true);
        lines->setFixedHeight(kLinesHeight);
        connect(lines, &QPlainTextEdit::textChanged, this, &FormControls::Changed);
        return lines;
    }
    if (box.kind == BoxKind::Choice || box.kind == BoxKind::EditableChoice) {
        auto* list = new QComboBox(screen);
        list->setObjectName(name);
        for (const std::string_view choice : box.choices) list->addItem(ToQt(choice));
        if (box.kind == BoxKind::EditableChoice) {
            list->setEditable(true);
            list->setInsertPolicy(QComboBox::NoInsert);
            filter(list->lineEdit());
        }
        connect(list, &QComboBox::currentTextChanged, this, &FormControls::Changed);
        return list;
    }
    QLineEdit* line = MakeBox(name, screen, kBoxWidth);
    filter(line);
    connect(line, &QLineEdit::textChanged, this, &FormControls::Changed);
    return line;
}

QGroupBox* FormControls::Group(const QString& title, std::string_view first, std::string_view last) {
    auto* group = new QGroupBox(title);
    auto* rows = new QFormLayout;
    group->setLayout(rows);
    for (std::size_t place = Place(first); place <= Place(last); ++place) {
        const FormBox& box = boxes_[place];
        if (box.unit.empty()) {
            rows->addRow(ToQt(box.caption), controls_[place]);
            continue;
        }
        auto* line = new QHBoxLayout;
        line->addWidget(controls_[place], 1);
        line->addWidget(new QLabel(ToQt(box.unit), group));
        rows->addRow(ToQt(box.caption), line);
    }
    return group;
}

FormTexts FormControls::Texts() const {
    FormTexts texts(boxes_);
    for (std::size_t place = 0; place < controls_.size(); ++place) {
        QString text;
        if (const auto* line = qobject_cast<const QLineEdit*>(controls_[place])) text = line->text();
        if (const auto* list = qobject_cast<const QComboBox*>(controls_[place])) text = list->currentText();
        if (const auto* lines = qobject_cast<const QPlainTextEdit*>(controls_[place]))
            text = lines->toPlainText();
        texts.Set(boxes_[place].name, FromQt(text));
    }
    return texts;
}

void FormControls::Show(const FormTexts& texts) {
    for (std::size_t place = 0; place < controls_.size(); ++place) {
        const QString text = ToQt(texts.Text(boxes_[place].name));
        if (auto* line = qobject_cast<QLineEdit*>(controls_[place])) line->setText(text);
        if (auto* lines = qobject_cast<QPlainTextEdit*>(controls_[place])) lines->setPlainText(text);
        if (auto* list = qobject_cast<QComboBox*>(controls_[place])) {
            list->setCurrentIndex(list->findText(text));
            if (list->isEditable()) list->setEditText(text);
        }
    }
}

std::size_t FormControls::Place(std::string_view name) const {
    const auto found =
        std::find_if(boxes_.begin(), boxes_.end(), [name](const FormBox& box) { return box.name == name; });
    KALVANE_ASSERT(found != boxes_.end());
    return static_cast<std::size_t>(found - boxes_.begin());
}

QWidget* FormControls::Control(std::string_view name) const {
    return controls_[Place(name)];
}

QLineEdit* FormControls::Box(std::string_view name) const {
    auto* box = qobject_cast<QLineEdit*>(Control(name));
    KALVANE_ASSERT(box != nullptr);
    return box;
}

void FormControls::FocusBehind(QWidget* control, QWidget* after) const {
    const auto found = std::find(controls_.begin(), controls_.end(), control);
    KALVANE_ASSERT(found != controls_.end());
    const auto next = std::find_if(found + 1, controls_.end(), [](QWidget* box) { return box->isEnabled(); });
    QWidget* target = next == controls_.end() ? after : *next;
    target->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(target)) line->selectAll();
}

}  // namespace kalvane
