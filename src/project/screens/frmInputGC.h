#pragma once

#include <array>

#include "project/project_list.h"
#include "ui/entry_screen.h"

namespace kalvane {

/// The texts of a project. Ended with OK, the shared field slots 1 to 4 hold contract number, name, place
/// and client.
class frmInputGC : public EntryScreen {
    Q_OBJECT

  public:
    frmInputGC(const QString& title, QWidget* parent);

    void Fill(const Project& project);

  private:
    void Confirm();

    std::array<QLineEdit*, 4> boxes_ = {};
};

}  // namespace kalvane
