#pragma once

#include <QStringList>
#include <QTreeWidget>

namespace kalvane {

/// A list in report view: text columns with headings, one selected row, rows addressed by index from 0.
/// Column widths fit their content until the operator changes one. A row index that does not exist is a
/// programming error. For a change of selection connect itemSelectionChanged.
class ReportList : public QTreeWidget {
    Q_OBJECT

  public:
    ReportList(const QString& name, const QStringList& columns, QWidget* parent = nullptr);

    int RowCount() const { return topLevelItemCount(); }
    /// Adds a row at the end and returns its index. `tag` is a text kept with the row and not shown.
    int AddRow(const QStringList& texts, const QString& tag = {});
    QStringList Row(int row) const;
    QString Text(int row, int column) const;
    QString Tag(int row) const;
    void SetRow(int row, const QStringList& texts);
    void SetText(int row, int column, const QString& text);
    /// A removed row that was selected hands the selection to the row after it, or else before it.
    void RemoveRow(int row);
    void Clear();

    /// -1 when no row is selected.
    int SelectedRow() const;
    void SelectRow(int row);

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QTreeWidgetItem* Item(int row) const;
    void FitColumnsSoon();
    void FitColumns();

    bool fitPending_ = false;  ///< one fit serves all rows added by one handler
    bool fitting_ = false;
    bool userSized_ = false;
};

}  // namespace kalvane
