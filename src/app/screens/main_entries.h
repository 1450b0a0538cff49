#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "app/rights.h"

namespace kalvane {

class MDIMain;

/// One command of the main screen.
struct MainEntry {
    QString name;
    QString caption;
    QString icon;
    std::optional<Right> right;
    std::function<void(MDIMain&)> open;
};

struct MainMenu {
    QString name;
    QString caption;
    std::optional<Right> right;  ///< of the whole menu
    std::vector<MainEntry> entries;
};

/// The menus with their entries. A new screen is one row here.
const std::vector<MainMenu>& MainMenus();

/// The buttons of the toolbar: the key of each and the entry it stands for.
const std::vector<std::pair<QString, MainEntry>>& MainToolbar();

}  // namespace kalvane
