#pragma once

#include <QLineEdit>
#include <QWidget>
#include <array>

#include "project/project_windows.h"

namespace kalvane {

class EntryScreen;

/// The six boxes of a project window, `Text1(0)` to `Text1(5)`: name, place, making width and height, count,
/// note.
class WindowBoxes : public QWidget {
    Q_OBJECT

  public:
    explicit WindowBoxes(QWidget* parent);

    const std::array<QLineEdit*, 6>& All() const { return boxes_; }
    QLineEdit* Name() const { return boxes_[0]; }
    QLineEdit* Place() const { return boxes_[1]; }
    QLineEdit* Width() const { return boxes_[2]; }
    QLineEdit* Height() const { return boxes_[3]; }

    void Show(const WindowEntry& window);
    /// `window` with the texts of the boxes in it.
    WindowEntry Entered(WindowEntry window) const;
    /// Sets all boxes but the name to "0".
    void Zero();
    /// Sets the size that belongs to a label of that name, if one does.
    void TakeLabel(const QString& name, const QString& value);

  private:
    std::array<QLineEdit*, 6> boxes_ = {};
};

}  // namespace kalvane
