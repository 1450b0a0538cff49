#pragma once

#include <vector>

#include "optimise/manual_run.h"
#include "ui/entry_screen.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QStatusBar;

namespace kalvane {

class ReportList;
class RunPanel;

/// A material typed by hand: lengths and counts, kept in a data file if wanted, and laid out on bars.
class frmHandup : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmHandup(QWidget* parent);

    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakeEntry();
    void Add();
    void Delete();
    void Paste();
    void Open();
    void Save();
    void Run();

    void AddRows(const std::vector<ManualRow>& rows);
    std::vector<ManualRow> Rows() const;
    void ShowTotal();
    void Tell(const QString& text);

    QLineEdit* txtName_;
    QLineEdit* txtCD_;
    QLineEdit* txtSL_;
    QPushButton* cmdAdd_;
    ReportList* lvw_;
    QLabel* total_;
    QLabel* label4_;
    RunPanel* runPanel_;
    QStatusBar* statusBar_;
};

}  // namespace kalvane
