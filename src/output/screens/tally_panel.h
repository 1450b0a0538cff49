#pragma once

#include <QGroupBox>

#include "output/screens/order_choice.h"
#include "output/tally_tables.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace kalvane {

/// The frame 统计 of frmTJJS: gathers the material of the chosen windows, and its reports and files.
class TallyPanel : public QGroupBox {
    Q_OBJECT

  public:
    TallyPanel(OrderChoice choice, QWidget* screen);

  private:
    void LayOut(const std::vector<std::pair<QPushButton*, QPushButton*>>& rows);
    ClassChoice Classes() const;
    void Gather();
    /// Shows when and from which windows the raw rows were gathered.
    void ShowGathering();
    /// Says so when the raw rows are not those of the windows that are chosen now.
    void TellIfOlder();
    /// Shows a report of the tally that was just built.
    void Show(Report report, TallyView view);
    void ShowQuantities(TallyView view);
    void ShowPrices();
    void Output(OutputView view);

    const OrderChoice choice_;
    QWidget* screen_;
    QCheckBox* profile_;
    QCheckBox* steel_;
    QCheckBox* panel_;
    QCheckBox* fitting_;
    QPushButton* gather_;
    QPushButton* quantities_;
    QPushButton* prices_;
    QPushButton* details_;
    QLabel* gathering_;
};

}  // namespace kalvane
