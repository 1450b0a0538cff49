#pragma once

#include <QStringList>

#include "project/project_windows.h"
#include "project/screens/quote_marks.h"
#include "ui/entry_screen.h"

class QPushButton;

namespace kalvane {

class MemberEditor;
class WindowBoxes;

/// A composite window: what it is made of, its sizes and its count.
class frmAddGCZHMC : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmAddGCZHMC(QWidget* parent);

    // Call one of the two before the screen is shown. They throw StoreError.

    /// For new composites of that project; the screen stays open after each.
    void StartAdding(const std::string& projectNumber);
    /// For a composite that is in the store.
    void StartEditing(const WindowEntry& window);

    /// Drops what is under edit and not saved.
    void done(int result) override;

  Q_SIGNALS:
    /// A composite was saved, as a row of a list of windows.
    void WindowSaved(const QStringList& row);

  protected:
    bool HasTypedWork() const override;

  private:
    void Connect();
    /// Asks about quotes and about members at fault, if there are any.
    bool MaySave();
    void Save();
    void Exit();

    MemberEditor* members_;
    WindowBoxes* boxes_;
    QPushButton* add_;
    QPushButton* exit_;

    QuoteMarks quotes_;
    WindowEntry window_;  ///< project of a new window, the window that is edited, or one whose save failed
    bool isEditing_ = false;
    bool hasTyped_ = false;
    bool hasSaveFailed_ = false;  ///< the row before may be gone
};

}  // namespace kalvane
