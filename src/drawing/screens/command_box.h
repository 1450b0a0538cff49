#pragma once

#include <QLineEdit>

namespace kalvane {

/// A command line: Enter and Space hand its text on and empty it, Esc empties it. Full-width characters, as
/// an input method types them, count as plain ones. Undo and redo keys are the screen's.
class CommandBox final : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

    /// Takes the focus with `text`, the caret behind it.
    void StartWith(const QString& text);

  Q_SIGNALS:
    void Entered(const QString& text);
    void Escaped();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kalvane
