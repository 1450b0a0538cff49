#pragma once

#include <QStringList>
#include <QTreeWidget>
#include <vector>

class QPushButton;

namespace kalvane {

/// A list in report view: text columns with headings, rows addressed by index from 0. Column widths fit their
/// content until the operator changes one. A click on a heading sorts the rows, numbers as numbers, a second
/// one the other way round, a third brings their own order back; Ctrl+C copies the selected rows with tabs. A
/// row index that does not exist is a programming error. For a change of selection connect
/// itemSelectionChanged.
class ReportList : public QTreeWidget {
    Q_OBJECT

  public:
    ReportList(const QString& name, const QStringList& columns, QWidget* parent = nullptr);

    /// Replaces the columns and drops the rows. The last `hidden` columns are kept with the rows and not
    /// shown.
    void SetColumns(const QStringList& columns, int hidden = 0);
    /// For a list whose order means something: no heading sorts it.
    void KeepOrder();
    /// Several rows can be selected.
    void SelectSeveral();
    /// Offers the commands of these buttons in the menu of the right button, above copying.
    void OfferInMenu(std::initializer_list<QPushButton*> buttons);

    int RowCount() const { return topLevelItemCount(); }
    /// Adds a row at the end and returns its index. `tag` is a text kept with the row and not shown.
    int AddRow(const QStringList& texts, const QString& tag = {});
    /// Adds many rows at once.
    void AddRows(const QList<QStringList>& rows);
    QStringList Row(int row) const;
    QString Text(int row, int column) const;
    QString Tag(int row) const;
    void SetRow(int row, const QStringList& texts);
    void SetText(int row, int column, const QString& text);
    /// A removed row that was selected hands the selection to the row after it, or else before it.
    void RemoveRow(int row);
    /// Drops the rows.
    void Clear();
    /// Moves rows with their tags to the end of a list of the same columns, in their order.
    void MoveRows(const std::vector<int>& rows, ReportList& to);
    std::vector<int> AllRows() const;

    /// The current row if it is selected, else the first selected one; -1 when none is.
    int SelectedRow() const;
    /// In the order of the list.
    std::vector<int> SelectedRows() const;
    /// As SelectedRow; with no selection says `complaint`.
    int SelectedOrTell(const QString& complaint);
    /// Makes it the one selected row and brings it into sight.
    void SelectRow(int row);

  Q_SIGNALS:
    /// A double click on a row, or where there is none.
    void DoubleClicked();

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    QTreeWidgetItem* Item(int row) const;
    QTreeWidgetItem* MakeItem(const QStringList& texts, const QString& tag);
    void SortBy(int column);
    void CopySelection() const;
    void FitColumnsSoon();
    void FitColumns();

    std::vector<QPushButton*> menuButtons_;
    qlonglong nextPlace_ = 0;  ///< in the rows' own order
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    bool opened_ = false;
    bool fitPending_ = false;  ///< one fit serves all rows added by one handler
    bool fitting_ = false;
    bool userSized_ = false;
};

}  // namespace kalvane
