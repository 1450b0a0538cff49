#pragma once

#include <QWidget>
#include <vector>

#include "warehouse/note_layout.h"

class QDateEdit;

namespace kalvane {

/// The boxes of a note's head. The date is today's until a note is shown.
class NoteHead : public QWidget {
    Q_OBJECT

  public:
    NoteHead(const NoteLayout& layout, QWidget* screen);

    /// One box for each head field, in their order.
    const std::vector<QWidget*>& Boxes() const { return boxes_; }
    QWidget* Box(const NoteField& field) const;
    /// Null when no head field is stored there.
    QWidget* BoxOfColumn(std::string_view column) const;

    /// A note without its lines.
    GoodsNote Entered() const;
    void Show(const GoodsNote& note);
    void SetText(std::string GoodsNote::*member, const std::string& text);
    void SetReadOnly();
    bool HasTypedTexts() const;

  private:
    void ShowDate(const std::string& day);

    const NoteLayout& layout_;
    QDateEdit* date_ = nullptr;
    std::vector<QWidget*> boxes_;
};

}  // namespace kalvane
