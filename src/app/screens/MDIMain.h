#pragma once

#include <QMainWindow>
#include <utility>
#include <vector>

#include "app/rights.h"

class QAction;
class QMenu;

namespace kalvane {

class PictureArea;

/// The frame of the program: menus, toolbar, child screens. Closing it ends the program.
class MDIMain : public QMainWindow {
    Q_OBJECT

  public:
    MDIMain();

    /// Reads the settings, opens the stores and applies the rights of the login. Call once, before show().
    void Load();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    struct Entry;
    struct EntryMenu;
    static const std::vector<EntryMenu>& Menus();
    static const Entry& EntryNamed(const QString& name);

    void MakeMenus();
    void MakeToolbar();
    void MakeStatusBar();
    QAction* MakeAction(const QString& name, const Entry& entry);
    void Guard(QAction* action, Right right);
    void ApplyRights();

    void ChangeBackground();
    void ClearWarehouse();
    void CloseChildOrProgram();
    void ShowDrawingDesk();
    void ShowHelp();
    void ShowAbout();

    PictureArea* area_;
    std::vector<std::pair<QAction*, Right>> guarded_;  ///< disabled until ApplyRights grants them
};

}  // namespace kalvane
