#pragma once

#include <QWidget>
#include <string>
#include <utility>
#include <vector>

#include "drawing/desk_command.h"

class QPushButton;
class QVBoxLayout;

namespace kalvane {

/// The column of buttons beside the canvas. None takes the focus, so that letters go on to the command line.
/// The button of a tool stays down while its tool is at work.
class DeskButtons final : public QWidget {
    Q_OBJECT

  public:
    explicit DeskButtons(QWidget* parent);

    /// Shows the button of a tool (drawing_tool.h) down, all others up.
    void ShowArmed(std::string_view tool);
    void ShowHistory(bool canUndo, bool canRedo);

  Q_SIGNALS:
    void Chosen(DeskCommand command);
    void UndoAsked();
    void RedoAsked();
    void OpenAsked();
    void SaveAsked();
    void DxfAsked();

  private:
    using Signal = void (DeskButtons::*)();

    void AddTools();
    void AddEdits();
    void AddFiles();
    void AddCommand(DeskCommand command, const char* name, const QString& caption, const char* icon,
                    const QString& toolTip);
    QPushButton* AddButton(Signal signal, const char* name, const QString& caption, const char* icon,
                           const QString& toolTip);
    QPushButton* Add(const char* name, const QString& caption, const char* icon, const QString& toolTip);

    QVBoxLayout* column_;
    std::vector<std::pair<std::string_view, QPushButton*>> tools_;
    QPushButton* undo_ = nullptr;
    QPushButton* redo_ = nullptr;
};

}  // namespace kalvane
