#pragma once

#include "ui/screen.h"
#include "warehouse/project_needs.h"

class QComboBox;
class QLabel;

namespace kalvane {

class ReportList;

/// Goods out for a project: what it needs beside what is in stock, of which the storekeeper chooses lines.
class frmGCLL : public Screen {
    Q_OBJECT

  public:
    /// `taken` are the lines that the note has already.
    frmGCLL(const ProjectNeeds& needs, std::vector<NoteLine> taken, QWidget* parent);

    /// The chosen lines of which there is something in stock.
    std::vector<NoteLine> Chosen() const;

  private:
    void LayOut();
    void ShowNeeds();
    void ShowLacking();
    void Confirm();

    const ProjectNeeds& needs_;
    const std::vector<NoteLine> taken_;
    const std::vector<std::pair<std::string, std::string>> projects_;
    std::vector<NeededLine> lines_;
    QComboBox* project_;
    ReportList* lvw_;
    QLabel* lacking_;
};

}  // namespace kalvane
