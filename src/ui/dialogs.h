#pragma once

#include <QString>
#include <optional>

#include "platform/notice.h"

class QWidget;

namespace kalvane {

/// Every message box, question, input box and file dialog of the program goes through here, so that tests
/// can answer in the operator's place. `parent` may be null: the box then stands over the active window.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// An empty title shows the program's.
    virtual void Message(QWidget* parent, const QString& text, const QString& title, NoticeIcon icon) = 0;
    /// Yes and No; true for Yes.
    virtual bool AskYesNo(QWidget* parent, const QString& text, const QString& title) = 0;
    /// OK and Cancel; true for OK.
    virtual bool AskOkCancel(QWidget* parent, const QString& text, const QString& title) = 0;
    /// One line of text; nothing when cancelled.
    virtual std::optional<QString> InputText(QWidget* parent, const QString& title, const QString& prompt,
                                             const QString& value) = 0;
    /// File to open or to save; empty when cancelled. `purpose` names the remembered folder; the first time
    /// it is the start-up folder. A filter is written "caption|pattern|caption|pattern". A save dialog adds
    /// `defaultSuffix` ("MC", without a dot) to a name that has none, and asks before it overwrites when
    /// `askOverwrite` is set.
    virtual QString OpenFileName(QWidget* parent, const QString& purpose, const QString& filter) = 0;
    virtual QString SaveFileName(QWidget* parent, const QString& purpose, const QString& filter,
                                 const QString& defaultSuffix, bool askOverwrite) = 0;
};

/// The dialogs in use: real ones, unless a test has put its own in their place.
Dialogs& UseDialogs();
/// Replaces the dialogs; null brings the real ones back. Not owned.
void SetDialogs(Dialogs* dialogs);

}  // namespace kalvane
