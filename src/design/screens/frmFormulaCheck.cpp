#include "design/screens/frmFormulaCheck.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(720, 420);
}  // namespace

frmFormulaCheck::frmFormulaCheck(const std::vector<FormulaFinding>& findings, const QString& remark,
                                 QWidget* parent)
    : Screen(QStringLiteral("frmFormulaCheck"), QStringLiteral("核对"), parent),
      lvw_(new ReportList(
          QStringLiteral("Lvw"),
          {QStringLiteral("公式表"), QStringLiteral("行"), QStringLiteral("列"), QStringLiteral("问题")},
          this)) {
    QList<QStringList> rows;
    for (const FormulaFinding& finding : findings) {
        const FormulaTable& table = FormulaTableOf(finding.materialClass);
        rows << QStringList{QString::fromUtf8(table.caption), QString::number(finding.row + 1),
                            QString::fromUtf8(table.columns[finding.column]), ToQt(finding.text)};
    }
    lvw_->KeepOrder();
    lvw_->AddRows(rows);
    QPushButton* show =
        MakeButton("OKButton", QStringLiteral("转到该行"), this, QStringLiteral("Enter 或双击"));
    show->setDefault(true);
    show->setEnabled(!findings.empty());
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("返回"), this, QStringLiteral("Esc"));
    cancel->setAutoDefault(false);
    auto* note = new QLabel(remark, this);
    note->setObjectName(QStringLiteral("LblRemark"));
    note->setWordWrap(true);
    LayOutAboveButtons(this, lvw_, {show, cancel}, note);
    resize(kFirstSize);

    const auto choose = [this] {
        if (lvw_->SelectedRow() >= 0) accept();
    };
    OnSignal(show, &QPushButton::clicked, this, choose);
    OnSignal(lvw_, &ReportList::itemDoubleClicked, this, choose);
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
}

std::optional<std::size_t> frmFormulaCheck::Choose() {
    if (exec() != Accepted) return std::nullopt;
    return static_cast<std::size_t>(lvw_->SelectedRow());
}

}  // namespace kalvane
