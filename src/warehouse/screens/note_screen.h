#pragma once

#include "ui/entry_screen.h"
#include "warehouse/note_layout.h"
#include "warehouse/note_recovery.h"

class QComboBox;
class QPushButton;

namespace kalvane {

class NoteHead;
class ReportList;

/// What both notes share: the head, the list of lines, confirmation, print, and the preview of a stored note.
/// Nothing is stored before the note is confirmed; what is typed until then is kept for a later screen,
/// should this one end in any other way.
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
    void AddLines(const std::vector<NoteLine>& lines);
    void SetLine(int row, const NoteLine& line);
    GoodsNote Entered() const;
    QPushButton* AddButton() { return add_; }

    bool HasTypedWork() const override;

  private:
    /// Brings the recovery file up to date; a failure is reported once and changes nothing else.
    void KeepTyped();
    void Recover();
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
    QComboBox* paper_;
    QPushButton* recover_;
    QPushButton* ok_;
    QPushButton* cancel_;
    std::vector<QPushButton*> ownCommands_;
    NoteRecovery recovery_;
    bool recoveryFailed_ = false;
    bool isPreview_ = false;
    bool isConfirmed_ = false;
};

}  // namespace kalvane
