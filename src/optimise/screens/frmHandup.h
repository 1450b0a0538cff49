#pragma once

#include <vector>

#include "optimise/manual_run.h"
#include "ui/entry_screen.h"

class QLabel;
class QStatusBar;

namespace kalvane {

class PieceEntry;
class ReportList;
class RunPanel;

/// A material typed by hand: lengths and counts, kept in a data file if wanted, and laid out on bars.
class frmHandup : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmHandup(QWidget* parent);

    void done(int result) override;

  private:
    void Add();
    void Delete();
    void Paste();
    void Open();
    void Save();
    void Run();

    void AddRows(const std::vector<ManualRow>& rows);
    std::vector<ManualRow> Rows() const;
    void ShowTotal();

    PieceEntry* entry_;
    ReportList* lvw_;
    QLabel* total_;
    QLabel* label4_;
    RunPanel* runPanel_;
    QStatusBar* statusBar_;
};

}  // namespace kalvane
