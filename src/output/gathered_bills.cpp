#include "output/gathered_bills.h"

#include "formula/composite.h"
#include "formula/expansion.h"
#include "numeric/error.h"
#include "platform/held_notice.h"

namespace kalvane {

void ExpandGathered(Connection& connection, std::span<const WindowEntry> windows,
                    const std::function<void(const WindowEntry&, const BillRow&)>& sink) {
    FormulaRows rows(connection);
    HeldNotice failures;
    for (const WindowEntry& window : windows) {
        const WindowToExpand one{window.number, window.typeNumber, window.count};
        const BillSink take = [&](const BillRow& row) { sink(window, row); };
        if (!IsComposite(window.typeNumber)) {
            ExpandPlain(connection, rows, one, failures, take, NullUnit::CountsZero);
            continue;
        }
        try {
            ExpandComposite(connection, rows, one, take, NullUnit::CountsZero);
        } catch (const Error&) {
            return;
        }
    }
}

}  // namespace kalvane
