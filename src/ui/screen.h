#pragma once

#include <QDialog>

namespace kalvane {

/// Base of every frm* screen: carries its name, remembers its size and place, and closes on Esc as well
/// when it is a child of the main screen's frame. Show it with exec() when it is modal.
class Screen : public QDialog {
    Q_OBJECT

  public:
    Screen(const QString& name, const QString& title, QWidget* parent);

    /// Shows without waiting: inside the main screen's frame when there is one, else as a window. The
    /// screen must have been made with new; it deletes itself when it is closed.
    void ShowModeless();

    void done(int result) override;
    /// Esc and the frame's close button: asks once when typed work would be lost.
    void reject() override;
    /// What the commands that leave a screen do: closes it without a question.
    void Leave() { done(Rejected); }

  protected:
    /// True while the screen holds typed work that closing it would lose.
    virtual bool HasTypedWork() const { return false; }

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    /// The widget whose geometry is the screen's: itself, or the child window it stands in.
    QWidget* Frame();
    QString GeometryKey() const;
    bool restored_ = false;
};

}  // namespace kalvane
