#pragma once

#include <QString>
#include <optional>

#include "platform/notice.h"

class QWidget;

namespace kalvane {

/// A file that is to be saved. A filter is written "caption|pattern|caption|pattern".
struct SaveRequest {
    QString purpose;  ///< names the remembered folder; the first time it is the start-up folder
    QString filter;
    QString suffix;             ///< "MC", without a dot; added to a name that has none
    QString name{};             ///< suggested
    bool asksOverwrite = true;  ///< in our own words, before a file is replaced
};

/// Every message box, question, input box and file dialog of the program goes through here, so that tests
/// can answer in the operator's place. `parent` may be null: the box then stands over the active window.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// An empty title shows the program's.
    virtual void Message(QWidget* parent, const QString& text, const QString& title, NoticeIcon icon) = 0;
    /// Yes and No, or OK and Cancel; true for the first. `usual` is the one that Enter presses.
    enum class Answer { Yes, No };
    virtual bool AskYesNo(QWidget* parent, const QString& text, const QString& title, Answer usual) = 0;
    virtual bool AskOkCancel(QWidget* parent, const QString& text, const QString& title, Answer usual) = 0;
    /// One line of text; nothing when cancelled.
    virtual std::optional<QString> InputText(QWidget* parent, const QString& title, const QString& prompt,
                                             const QString& value) = 0;
    /// An existing file, and a file to save; empty when cancelled. `purpose` and `filter` as in SaveRequest.
    virtual QString OpenFileName(QWidget* parent, const QString& purpose, const QString& filter) = 0;
    virtual QString SaveFileName(QWidget* parent, const SaveRequest& request) = 0;
};

/// The dialogs in use: real ones, unless a test has put its own in their place.
Dialogs& UseDialogs();
/// Replaces the dialogs; null brings the real ones back. Not owned.
void SetDialogs(Dialogs* dialogs);

/// Title of what the screens say and ask.
QString PromptTitle();

/// Says something under that title.
void Tell(QWidget* parent, const QString& text);
/// The same, and leads to the control that is meant; the text of a box there is selected.
void TellAt(QWidget* parent, const QString& text, QWidget* control);

/// Asks under that title.
bool Ask(QWidget* parent, const QString& text);
/// Asks before something is deleted or lost: Enter keeps it.
bool AskToLose(QWidget* parent, const QString& text);

}  // namespace kalvane
