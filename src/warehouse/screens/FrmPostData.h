#pragma once

#include <functional>

#include "ui/entry_screen.h"
#include "warehouse/note_layout.h"

class QComboBox;

namespace kalvane {

class ReportList;

/// Picks lines of a goods-out note from the stock, one after the other.
class FrmPostData : public EntryScreen {
    Q_OBJECT

  public:
    using Take = std::function<void(const NoteLine& line)>;

    FrmPostData(Take take, QWidget* parent);

  private:
    void LayOut();
    void ShowStock();
    void Choose();
    void Add();

    const Take take_;
    QComboBox* kinds_;
    ReportList* stock_;
    QLineEdit* name_;
    QLineEdit* code_;
    QLineEdit* unit_;
    QLineEdit* count_;
    QLineEdit* kind_;
    QPushButton* add_;
    QPushButton* back_;
    QString onHand_;  ///< of the chosen row
};

}  // namespace kalvane
