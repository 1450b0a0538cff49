#pragma once

#include <string>
#include <vector>

#include "ui/entry_screen.h"

class QProgressBar;

namespace kalvane {

class PickLists;

/// Third step of an optimisation: the materials, and the run.
class frmCreate03 : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmCreate03(QWidget* parent);

  private:
    void Load();
    void Next();
    void Run(const std::vector<std::string>& materials);
    void ShowProgress(std::size_t material);

    PickLists* lists_;
    QProgressBar* progressBar_;
};

}  // namespace kalvane
