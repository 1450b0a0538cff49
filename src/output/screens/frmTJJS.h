#pragma once

#include "output/screens/order_choice.h"
#include "ui/screen.h"

namespace kalvane {

class PickLists;

/// Material and settlement of a project: its windows to choose from, and the two accounts of the chosen ones.
class frmTJJS : public Screen {
    Q_OBJECT

  public:
    frmTJJS(const Project& project, ShowDesigner showDesigner, QWidget* parent);

  private:
    PickLists* lists_;
};

}  // namespace kalvane
