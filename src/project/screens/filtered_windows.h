#pragma once

#include <QWidget>
#include <vector>

class QLineEdit;

namespace kalvane {

class ReportList;

/// A list of windows below a box `TxtFilter` that hides the rows without its text. The rows can be dragged
/// into another order, which is that of the screen only.
class FilteredWindows : public QWidget {
    Q_OBJECT

  public:
    /// Takes the list into its layout.
    FilteredWindows(ReportList* list, QWidget* parent);

    /// The rows that are not hidden, in their order.
    std::vector<int> ShownRows() const;

  private:
    /// Rows are dropped between others, never into one.
    void SetUpRows(int first, int last);
    void Filter();

    ReportList* list_;
    QLineEdit* filter_;
};

}  // namespace kalvane
