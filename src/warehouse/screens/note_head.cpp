#include "warehouse/screens/note_head.h"

#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>

#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr int kFieldsInRow = 2;

QString DateFormat() {
    return QStringLiteral("yyyy-MM-dd");
}

}  // namespace

NoteHead::NoteHead(const NoteLayout& layout, QWidget* screen) : QWidget(screen), layout_(layout) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    for (const NoteField& field : layout_.fields) {
        if (field.member == &GoodsNote::date) {
            date_ = new QDateEdit(QDate::currentDate(), this);
            date_->setObjectName(ToQt(field.box));
            date_->setDisplayFormat(DateFormat());
            date_->setCalendarPopup(true);
            boxes_.push_back(date_);
        } else {
            boxes_.push_back(MakeBox(ToQt(field.box), this));
        }
        const auto place = static_cast<int>(boxes_.size()) - 1;
        const int row = place / kFieldsInRow;
        const int column = 3 * (place % kFieldsInRow);
        grid->addWidget(new QLabel(ToQt(field.label), this), row, column);
        grid->addWidget(boxes_.back(), row, column + 1);
        if (field.member == &GoodsNote::amount) {
            grid->addWidget(new QLabel(QStringLiteral("元"), this), row, column + 2);
        }
        grid->setColumnStretch(column + 1, 1);
    }
    static_cast<QLineEdit*>(boxes_.front())->setReadOnly(true);  // the number is allotted
}

QWidget* NoteHead::Box(const NoteField& field) const {
    return findChild<QWidget*>(ToQt(field.box));
}

QWidget* NoteHead::BoxOfColumn(std::string_view column) const {
    for (const NoteField& field : layout_.fields) {
        if (field.column == column) return Box(field);
    }
    return nullptr;
}

GoodsNote NoteHead::Entered() const {
    GoodsNote note;
    for (const NoteField& field : layout_.fields) {
        note.*field.member =
            FromQt(field.member == &GoodsNote::date ? date_->date().toString(DateFormat())
                                                    : static_cast<QLineEdit*>(Box(field))->text());
    }
    return note;
}

void NoteHead::Show(const GoodsNote& note) {
    for (const NoteField& field : layout_.fields) {
        if (field.member == &GoodsNote::date) {
            ShowDate(note.date);
        } else {
            SetText(field.member, note.*field.member);
        }
    }
}

void NoteHead::SetText(std::string GoodsNote::*member, const std::string& text) {
    for (const NoteField& field : layout_.fields) {
        if (field.member == member) static_cast<QLineEdit*>(Box(field))->setText(ToQt(text));
    }
}

void NoteHead::ShowDate(const std::string& day) {
    const QDate date = QDate::fromString(ToQt(day).left(DateFormat().size()), DateFormat());
    date_->setSpecialValueText(QStringLiteral(" "));  // for a note without a date
    date_->setDate(date.isValid() ? date : date_->minimumDate());
}

void NoteHead::SetReadOnly() {
    for (QWidget* box : boxes_) box->setProperty("readOnly", true);
}

bool NoteHead::HasTypedTexts() const {
    return std::any_of(boxes_.begin(), boxes_.end(), [](const QWidget* box) {
        const auto* line = qobject_cast<const QLineEdit*>(box);
        return line != nullptr && !line->isReadOnly() && !line->text().isEmpty();
    });
}

}  // namespace kalvane
