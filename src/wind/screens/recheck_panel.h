#pragma once

#include <QTextBrowser>

#include "wind/recheck.h"

namespace kalvane {

/// The re-check beside a report: each check with formula, numbers, result, limit and verdict, in red where it
/// contradicts the report, and the warnings.
class RecheckPanel : public QTextBrowser {
    Q_OBJECT

  public:
    explicit RecheckPanel(QWidget* parent);

    void Show(const Recheck& recheck);
};

}  // namespace kalvane
