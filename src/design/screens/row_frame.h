#pragma once

#include <QFrame>
#include <QLineEdit>
#include <array>
#include <functional>

#include "design/formula_lists.h"

class QLabel;
class QPushButton;

namespace kalvane {

/// The frame in which one formula row is edited: the boxes `Text1(0)` to `Text1(3)`, labelled for the class
/// of the row, `CmdOk` and `CmdCancel`, and a line that says what the formulas come to as they are typed. The
/// box that has the focus is yellow.
class RowFrame : public QFrame {
    Q_OBJECT

  public:
    explicit RowFrame(QWidget* parent);

    void Open(MaterialClass materialClass, const FormulaTexts& texts);
    FormulaTexts Texts() const;
    const std::array<QLineEdit*, kFormulaColumns>& Boxes() const { return boxes_; }

    /// Makes the line below the boxes from their texts.
    void SetHint(std::function<QString(const FormulaTexts&)> hint) { hint_ = std::move(hint); }
    /// What Ctrl+Enter brings to a box.
    void SetSource(std::function<const FormulaTexts&()> source) { source_ = std::move(source); }

    QPushButton* Ok() const { return ok_; }
    QPushButton* Cancel() const { return cancel_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void CopyFromSource(std::size_t column);
    void ShowHint();

    std::array<QLabel*, kFormulaColumns> labels_ = {};
    std::array<QLineEdit*, kFormulaColumns> boxes_ = {};
    QLabel* hintLine_;
    QPushButton* ok_;
    QPushButton* cancel_;
    std::function<QString(const FormulaTexts&)> hint_;
    std::function<const FormulaTexts&()> source_;
};

}  // namespace kalvane
