#pragma once

#include <string>
#include <vector>

#include "ui/entry_screen.h"

namespace kalvane {

class PickLists;
class RunPanel;

/// Third step of an optimisation: the materials, and the run.
class frmCreate03 : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmCreate03(QWidget* parent);

    void done(int result) override;

  private:
    void Load();
    void Next();
    void Run(const std::vector<std::string>& materials);

    PickLists* lists_;
    RunPanel* runPanel_;
};

}  // namespace kalvane
