#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <cstddef>
#include <string>
#include <vector>

#include "optimise/plan_yield.h"

namespace kalvane {

class ReportList;

/// The columns of 材料统计表 that say how good the plan is: bars used, material needed, and the bars that no
/// plan can do without. The bounds are worked out while the screen waits for the operator, a step at a
/// time, each material for a few seconds at most.
class YieldColumns : public QObject {
    Q_OBJECT

  public:
    static QStringList Headings();

    /// `list` has the headings behind `firstColumn` columns of its own, and its first column names the
    /// material; it must outlive this.
    YieldColumns(ReportList* list, int firstColumn);

    /// Fills the columns for a bar of `stock` mm.
    void Show(std::vector<MaterialYield> yields, int stock);

  private:
    void Step();
    void ShowBound(const QString& note);

    ReportList* list_;
    int firstColumn_;
    int stock_ = 0;
    std::vector<MaterialYield> yields_;
    std::size_t current_ = 0;  ///< row whose bound is worked on
    std::optional<BarBound> bound_;
    QTimer idle_;
    QElapsedTimer sinceStart_;
};

}  // namespace kalvane
