#pragma once

#include <QTableWidget>

#include "design/test_values.h"

namespace kalvane {

/// The labels of a drawing with the values that formulas are tried out with, typed once and remembered by the
/// label's name: table `LvwTest`.
class TestValueTable : public QTableWidget {
    Q_OBJECT

  public:
    explicit TestValueTable(QWidget* parent);

    /// Shows the labels; a value that was typed for one of their names before takes the place of that handed
    /// over.
    void Show(const std::vector<TestLabel>& labels);
    TestValues Values() const;

  Q_SIGNALS:
    void Changed();

  private:
    void Keep() const;
};

}  // namespace kalvane
