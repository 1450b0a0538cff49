#pragma once

#include <QGroupBox>

#include "output/screens/order_choice.h"
#include "output/tally_tables.h"

class QPushButton;

namespace kalvane {

/// The frame 决算 of frmTJJS: what the doors and windows of the order are paid, and its reports and files.
class SettlementPanel : public QGroupBox {
    Q_OBJECT

  public:
    SettlementPanel(OrderChoice choice, QWidget* screen);

  private:
    void Settle();
    SettlementParties Parties() const;
    void Output(OutputView view);

    const OrderChoice choice_;
    QWidget* screen_;
    QPushButton* areas_;
    QPushButton* amounts_;
};

}  // namespace kalvane
