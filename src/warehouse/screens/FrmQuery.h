#pragma once

#include "ui/entry_screen.h"
#include "warehouse/stock_query.h"

class QComboBox;
class QTabBar;

namespace kalvane {

class ReportList;

/// Browses the notes and the stock list, all rows or those with one field equal to one value.
class FrmQuery : public EntryScreen {
    Q_OBJECT

  public:
    explicit FrmQuery(QWidget* parent);

  private:
    void LayOut();
    void Connect();
    std::string_view Table() const;
    void ShowTab();
    void ChooseField();
    void RunFilter();
    void Fill(const std::string& statement);
    void MarkNegativeStock();
    void Preview();
    void Export(bool asWorkbook);

    QTabBar* tabs_;
    QComboBox* fields_;
    QComboBox* types_;  ///< of the fields, at the same index; hidden
    QLineEdit* value_;
    QPushButton* query_;
    QPushButton* all_;
    QPushButton* print_;
    QPushButton* workbook_;
    QPushButton* text_;
    QPushButton* exit_;
    ReportList* lvw_;
};

}  // namespace kalvane
