#pragma once

#include <QTimer>
#include <optional>

#include "store/cursor.h"
#include "store/schema.h"

namespace kalvane {

class ReportList;

/// The rows of FrmQuery's list. Of many rows the first come up at once, the others while the operator looks
/// at them; until then no heading sorts. A stock row below zero is marked.
class QueryRows : public QObject {
    Q_OBJECT

  public:
    /// `list` must outlive this.
    explicit QueryRows(ReportList& list);

    /// A list without columns.
    void Clear();
    /// Shows the rows of a select of all columns of `table`.
    void Show(const Table& table, Cursor rows);
    /// Adds what is still to come, for whoever needs all rows.
    void Finish();

  private:
    void AddRows(int most);
    void MarkNegative(int row);

    ReportList& list_;
    std::optional<Cursor> rows_;  ///< while some are still to come
    int stockColumn_ = -1;        ///< of the 库存量; -1 where there is none
    QTimer timer_;
};

}  // namespace kalvane
