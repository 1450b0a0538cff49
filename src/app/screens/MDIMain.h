#pragma once

#include <QMainWindow>
#include <utility>
#include <vector>

#include "app/rights.h"

class QAction;
class QTimer;

namespace kalvane {

class PictureArea;
struct MainEntry;

/// The frame of the program: menus, toolbar, child screens. Closing it ends the program.
class MDIMain : public QMainWindow {
    Q_OBJECT

  public:
    MDIMain();

    /// Reads the settings, opens the stores and applies the rights of the login. Call once, before show().
    void Load();

    /// Shows the picture of a file behind the child screens. Throws FileError when it cannot be read.
    void ShowBackground(const QString& file);
    void CloseChildOrProgram();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    /// Today's copies of the stores.
    void KeepCopies();
    void MakeMenus();
    void MakeToolbar();
    void MakeStatusBar();
    QAction* MakeAction(const QString& name, const MainEntry& entry);
    void Guard(QAction* action, Right right);
    void ApplyRights();

    PictureArea* area_;
    QTimer* idle_;                                     ///< runs until the copies of the day are kept
    std::vector<std::pair<QAction*, Right>> guarded_;  ///< disabled until ApplyRights grants them
};

}  // namespace kalvane
