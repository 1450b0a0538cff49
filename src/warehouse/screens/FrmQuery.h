#pragma once

#include "ui/entry_screen.h"
#include "warehouse/screens/query_rows.h"
#include "warehouse/stock_query.h"

class QComboBox;
class QTabBar;

namespace kalvane {

class ReportList;

/// Browses the notes and the stock list, all rows or those with one field equal to one value, and leads on to
/// a note, to the movements of a material and to the minimum stocks.
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
    void Preview();
    void ShowFlow();
    void Export(bool asWorkbook);

    QTabBar* tabs_;
    QComboBox* fields_;
    QComboBox* types_;  ///< of the fields, at the same index; hidden
    QLineEdit* value_;
    QPushButton* query_;
    QPushButton* all_;
    QPushButton* print_;
    QPushButton* kindPrint_;
    QPushButton* flow_;
    QPushButton* minimum_;
    QPushButton* workbook_;
    QPushButton* text_;
    QPushButton* exit_;
    ReportList* lvw_;
    QueryRows rows_;
};

}  // namespace kalvane
