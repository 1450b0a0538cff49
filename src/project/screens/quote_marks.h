#pragma once

#include <QString>
#include <vector>

class QWidget;

namespace kalvane {

/// Boxes whose texts go into a statement that is run after the rows before have been deleted. One that holds
/// a quote, which the store refuses, is red while it does, and a save is asked about first.
class QuoteMarks {
  public:
    /// Takes a QLineEdit or a QPlainTextEdit.
    void Watch(QWidget* box);

    /// True when no box holds a quote, or the operator wants to save all the same. Else leads to the box.
    bool MaySave(QWidget* screen) const;

  private:
    std::vector<QWidget*> boxes_;
};

/// The text of a QLineEdit or a QPlainTextEdit.
QString TextOfBox(const QWidget* box);

}  // namespace kalvane
