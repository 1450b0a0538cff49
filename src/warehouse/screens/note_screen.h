#pragma once

#include "ui/entry_screen.h"
#include "warehouse/note_layout.h"

class QPushButton;

namespace kalvane {

class NoteHead;
class ReportList;

/// What both notes share: the head, the list of lines, confirmation, print, and the preview of a stored note.
/// Nothing is stored before the note is confirmed.
class NoteScreen : public EntryScreen {
    Q_OBJECT

  public:
    /// Shows a stored note, of which nothing can be changed.
    void Preview(const GoodsNote& note);

  protected:
    /// A new note of that number.
    NoteScreen(NoteKind kind, const std::string& number, QWidget* parent);

    /// To be called once, with the commands that one of the notes has beside the shared ones.
    void LayOut(std::vector<QPushButton*> ownCommands);

    ReportList& Lines() { return *lvw_; }
    NoteLine LineAt(int row) const;
    void AddLine(const NoteLine& line);
    void SetLine(int row, const NoteLine& line);
    QPushButton* AddButton() { return add_; }

    bool HasTypedWork() const override;

  private:
    QStringList TextsOf(const NoteLine& line) const;
    GoodsNote Entered() const;
    bool RefuseIncomplete(const GoodsNote& note);
    /// Asks for another number when this one is taken; false to go on typing.
    bool TakeFreeNumber(GoodsNote& note);
    /// Asks when the lines together go beyond the stock.
    bool IsWanted(const GoodsNote& note);
    void Confirm();
    void Delete();
    void Print();

    const NoteKind kind_;
    const NoteLayout& layout_;
    NoteHead* head_;
    ReportList* lvw_;
    QPushButton* add_;
    QPushButton* del_;
    QPushButton* print_;
    QPushButton* ok_;
    QPushButton* cancel_;
    std::vector<QPushButton*> ownCommands_;
    bool isPreview_ = false;
};

}  // namespace kalvane
