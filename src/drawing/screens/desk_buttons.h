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
class DeskButtons final : public QWidget {
    Q_OBJECT

  public:
    explicit DeskButtons(QWidget* parent);

    QPushButton* AddButton(const char* name, const QString& caption, const QString& icon,
                           const QString& toolTip);
    void AddGap();
    /// Room between the buttons above and those below.
    void AddStretch();
    /// A button that gives a command; one that arms a tool stays down while its tool is at work.
    void AddCommand(DeskCommand command, const char* name, const QString& caption, const QString& icon,
                    const QString& toolTip);

    /// Shows the button of a tool (drawing_tool.h) down, all others up.
    void ShowArmed(std::string_view tool);

  Q_SIGNALS:
    void Chosen(DeskCommand command);

  private:
    QVBoxLayout* column_;
    std::vector<std::pair<std::string_view, QPushButton*>> tools_;
};

}  // namespace kalvane
