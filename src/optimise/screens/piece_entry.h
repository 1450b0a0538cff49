#pragma once

#include <QWidget>

#include "optimise/manual_run.h"

class QLineEdit;
class QPushButton;

namespace kalvane {

/// The head of the manual list: the material `TxtName`, and `TxtCD`, `TxtSL` and `CmdAdd` for one row of
/// pieces. A table that is pasted into a number box goes to the list, instead of losing all that parts its
/// numbers.
class PieceEntry : public QWidget {
    Q_OBJECT

  public:
    explicit PieceEntry(QWidget* parent);

    QString Material() const;
    ManualRow Row() const;
    /// Empties the row for the next pieces.
    void StartRow();
    /// Leads to the box of a refused row.
    void FocusOn(ManualRowFailure::Field field);

    QLineEdit* MaterialBox() const { return txtName_; }
    QLineEdit* LengthBox() const { return txtCD_; }
    QLineEdit* CountBox() const { return txtSL_; }
    QPushButton* AddButton() const { return cmdAdd_; }

  Q_SIGNALS:
    void TablePasted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* txtName_;
    QLineEdit* txtCD_;
    QLineEdit* txtSL_;
    QPushButton* cmdAdd_;
};

}  // namespace kalvane
