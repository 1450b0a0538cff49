#pragma once

#include <QDialog>

namespace kalvane {

/// Base of every frm* screen: carries its name, remembers its geometry, and closes on Esc as well when it
/// is a child of the main screen's frame.
class Screen : public QDialog {
    Q_OBJECT

  public:
    Screen(const QString& name, const QString& title, QWidget* parent);

    /// Shows without waiting: inside the main screen's frame when there is one, else as a window.
    void ShowModeless();

  protected:
    void done(int result) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QWidget* Frame();
    bool restored_ = false;
};

}  // namespace kalvane
