#pragma once

#include <QGroupBox>

#include "output/gathering_record.h"
#include "output/screens/order_choice.h"
#include "page/table_file.h"

namespace kalvane {

/// What stands beside the two accounts of frmTJJS: the rows of the tally to look into, the lists to buy and
/// to cut glass by, and the short table.
class OrderListsPanel : public QGroupBox {
    Q_OBJECT

  public:
    OrderListsPanel(OrderChoice choice, QWidget* screen);

  private:
    /// The record of the gathering in the store; tells the operator when there is none.
    std::optional<GatheringRecord> GatheringOrTell();
    using MakeList = std::function<FileTable(const GatheringRecord&)>;
    void Preview(const MakeList& make);
    void Save(const MakeList& make);

    const OrderChoice choice_;
    QWidget* screen_;
};

}  // namespace kalvane
