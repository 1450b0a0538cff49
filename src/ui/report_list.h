#pragma once

#include <QStringList>
#include <QTreeWidget>

namespace kalvane {

/// A list in report view: text columns with headings, one selected row, rows addressed by index from 0.
/// Column widths fit their content until the operator changes one.
class ReportList : public QTreeWidget {
    Q_OBJECT

  public:
    ReportList(const QString& name, const QStringList& columns, QWidget* parent = nullptr);

    int RowCount() const { return topLevelItemCount(); }
    int AddRow(const QStringList& texts, const QString& tag = {});
    QStringList Row(int row) const;
    QString Text(int row, int column) const;
    QString Tag(int row) const;
    void SetRow(int row, const QStringList& texts);
    void SetText(int row, int column, const QString& text);
    void RemoveRow(int row);
    void Clear();

    /// -1 when no row is selected.
    int SelectedRow() const;
    void SelectRow(int row);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void FitColumns();
    bool userSized_ = false;
    bool fitting_ = false;
};

}  // namespace kalvane
