#include "warehouse/clear_stock.h"

#include "store/command_scope.h"
#include "store/dated_copies.h"

namespace kalvane {

void ClearStock(Connection& stock) {
    InCommand(stock, [&stock] {
        stock.Execute("Delete * from 入库单");
        stock.Execute("Delete * from 出库单");
        stock.Execute("Delete * from 入库单子表");
        stock.Execute("Delete * from 出库单子表");
        stock.Execute("Delete * from 库存表");
    });
}

std::filesystem::path ClearStockKeepingCopy(Connection& stock) {
    std::filesystem::path copy = KeepCopy(stock.File());
    ClearStock(stock);
    return copy;
}

}  // namespace kalvane
