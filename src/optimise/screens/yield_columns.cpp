#include "optimise/screens/yield_columns.h"

#include <QTreeWidgetItem>

#include "ui/guard.h"
#include "ui/report_list.h"

namespace kalvane {
namespace {

constexpr int kMillisecondsPerBound = 3000;
constexpr int kMillisecondsPerStep = 20;

// Columns behind the first ones.
constexpr int kBars = 0;
constexpr int kNeed = 1;
constexpr int kBound = 2;

}  // namespace

QStringList YieldColumns::Headings() {
    return {QStringLiteral("用料根数"), QStringLiteral("需料（米）"), QStringLiteral("下限根数")};
}

YieldColumns::YieldColumns(ReportList* list, int firstColumn)
    : QObject(list), list_(list), firstColumn_(firstColumn) {
    QTreeWidgetItem* heading = list->headerItem();
    heading->setToolTip(firstColumn + kBars,
                        QStringLiteral("本方案用去的材料根数。“超装”的一根放不下所排的料：方案二把余下的"
                                       "小料全部排在一行上，实际要用更多根。"));
    heading->setToolTip(firstColumn + kNeed,
                        QStringLiteral("所有料连同每件的料头和两道切口共需的长度，单位为米。"));
    heading->setToolTip(
        firstColumn + kBound,
        QStringLiteral(
            "切出同样的料，任何方案都不可能少于这个根数（由下料线性规划的对偶价格算出，取整数验证）。"
            "“按总长”表示只由需料总长除以材料长度得出。"));
    OnSignal(&idle_, &QTimer::timeout, list, [this] { Step(); });
}

void YieldColumns::Show(std::vector<MaterialYield> yields, int stock) {
    yields_ = std::move(yields);
    stock_ = stock;
    current_ = 0;
    bound_.reset();
    for (std::size_t i = 0; i < yields_.size(); ++i) {
        const MaterialYield& yield = yields_[i];
        QString bars = QString::number(yield.bars);
        if (yield.overfilledBars > 0) bars += QStringLiteral("（%1 根超装）").arg(yield.overfilledBars);
        const int row = static_cast<int>(i);
        list_->SetText(row, firstColumn_ + kBars, bars);
        list_->SetText(row, firstColumn_ + kNeed, QString::number(yield.needMetres, 'f', 2));
    }
    if (!yields_.empty()) idle_.start(0);
}

void YieldColumns::Step() {
    if (!bound_) {
        bound_.emplace(stock_, yields_[current_].demand);
        sinceStart_.start();
        ShowBound(QStringLiteral("，计算中…"));
    }
    QElapsedTimer step;
    step.start();
    bool goesOn = true;
    while (goesOn && step.elapsed() < kMillisecondsPerStep) goesOn = bound_->Step();
    if (goesOn && sinceStart_.elapsed() < kMillisecondsPerBound) return;
    if (bound_->IsOptimal() || bound_->Bars() == 0) {
        ShowBound({});
    } else {
        ShowBound(goesOn ? QStringLiteral("（限时）") : QStringLiteral("（按总长）"));
    }
    bound_.reset();
    if (++current_ == yields_.size()) idle_.stop();
}

void YieldColumns::ShowBound(const QString& note) {
    const auto bars = static_cast<qlonglong>(bound_->Bars());
    list_->SetText(static_cast<int>(current_), firstColumn_ + kBound,
                   bars == 0 ? QStringLiteral("—") : QString::number(bars) + note);
}

}  // namespace kalvane
