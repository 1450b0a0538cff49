#pragma once

#include "ui/screen.h"

class QAction;
class QFormLayout;
class QLabel;
class QToolBar;

namespace kalvane {

/// The optimisation module: its commands, and the options that the next run goes by.
class frmYHMain : public Screen {
    Q_OBJECT

  public:
    explicit frmYHMain(QWidget* parent);

  private:
    QAction* AddButton(QToolBar& toolbar, int index, const QString& caption, const QString& icon);
    void SwitchScheme();
    void ShowOptions();
    void ShowHelp();
    /// Shows the options in force.
    void Refresh();

    QAction* scheme_;
    QLabel* options_;
};

}  // namespace kalvane
