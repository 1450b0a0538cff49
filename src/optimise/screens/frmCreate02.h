#pragma once

#include <string>

#include "ui/entry_screen.h"

namespace kalvane {

class PickLists;

/// Second step of an optimisation: the windows of the project.
class frmCreate02 : public EntryScreen {
    Q_OBJECT

  public:
    frmCreate02(const std::string& projectNumber, QWidget* parent);

  private:
    void Load(const std::string& projectNumber);
    void Next();

    PickLists* lists_;
};

}  // namespace kalvane
