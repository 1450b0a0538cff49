#include "warehouse/screens/frmGCLL.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "numeric/number.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(960, 560);

/// The place of the line, behind the shown columns: a sorted list has another order than the lines.
constexpr int kPlaceColumn = 9;

constexpr qsizetype kMostNamed = 5;  // of the materials that lack, below the list that has all of them

}  // namespace

frmGCLL::frmGCLL(const ProjectNeeds& needs, std::vector<NoteLine> taken, QWidget* parent)
    : Screen(QStringLiteral("frmGCLL"), QStringLiteral("按工程领料"), parent),
      needs_(needs),
      taken_(std::move(taken)),
      projects_(needs.list()),
      project_(new QComboBox(this)),
      lvw_(new ReportList(QStringLiteral("Lvw"), {}, this)),
      lacking_(new QLabel(this)) {
    project_->setObjectName(QStringLiteral("cboGC"));
    lacking_->setObjectName(QStringLiteral("LblLacking"));
    lacking_->setWordWrap(true);
    for (const auto& [number, name] : projects_) {
        project_->addItem(ToQt(name));
        if (number == App().currentProjectId) project_->setCurrentIndex(project_->count() - 1);
    }
    LayOut();
    OnSignal(project_, &QComboBox::currentIndexChanged, this, [this] { ShowNeeds(); });
    // Once the screen is up: what cannot be worked out is said over it.
    QMetaObject::invokeMethod(
        this, [this] { Guarded(this, [this] { ShowNeeds(); }); }, Qt::QueuedConnection);
}

void frmGCLL::LayOut() {
    lvw_->SelectSeveral();
    auto* body = new QWidget(this);
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(project_);
    rows->addWidget(lvw_, 1);
    rows->addWidget(lacking_);
    rows->addWidget(new QLabel(QStringLiteral("“依据”说明数量怎样得来：优化结果中的根数，或者总长÷材料长度、"
                                              "总面积÷板材面积（进整），或者件数。"),
                               body));
    rows->addWidget(new QLabel(
        QStringLiteral("选中的行加入出库单，“领料”不超过库存量；按住 Ctrl 或 Shift 选几行。"), body));
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("&A 加入出库单"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("&E 返回"), this);
    ok->setDefault(true);
    LayOutAboveButtons(this, body, {ok, cancel});
    resize(kFirstSize);
    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
}

void frmGCLL::ShowNeeds() {
    lines_.clear();
    if (!projects_.empty()) {
        MessageNotice notice(this);
        const std::string& number = projects_[static_cast<std::size_t>(project_->currentIndex())].first;
        lines_ = MatchNeeds(App().Stock(), needs_.of(number, notice), taken_);
    }
    lvw_->SetColumns({QStringLiteral("名称"), QStringLiteral("规格"), QStringLiteral("单位"),
                      QStringLiteral("种类"), QStringLiteral("需要"), QStringLiteral("依据"),
                      QStringLiteral("库存量"), QStringLiteral("领料"), QStringLiteral("缺"), QString()},
                     1);
    QList<QStringList> rows;
    for (const NeededLine& needed : lines_) {
        const NoteLine& line = needed.line;
        rows << QStringList{ToQt(line.name),      ToQt(line.code),
                            ToQt(line.unit),      ToQt(line.kind),
                            ToQt(needed.needed),  ToQt(needed.basis),
                            ToQt(needed.onHand),  ToQt(line.count),
                            ToQt(needed.lacking), QString::number(rows.size())};
    }
    lvw_->AddRows(rows);
    for (int row = 0; row < lvw_->RowCount(); ++row) {
        const NoteLine& line = lines_[static_cast<std::size_t>(row)].line;
        lvw_->topLevelItem(row)->setSelected(Val(line.count) > 0);
    }
    lvw_->setFocus();
    ShowLacking();
}

void frmGCLL::ShowLacking() {
    QStringList lacking;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const NeededLine& needed = lines_[i];
        if (needed.lacking.empty()) continue;
        lacking << QStringLiteral("%1 缺 %2%3")
                       .arg(ToQt(needed.line.code), ToQt(needed.lacking), ToQt(needed.line.unit));
        QTreeWidgetItem* item = lvw_->topLevelItem(static_cast<int>(i));
        for (int column = 0; column < kPlaceColumn; ++column) item->setForeground(column, Qt::red);
    }
    QString text = QStringLiteral("库存足够。");
    if (projects_.empty()) {
        text = QStringLiteral("没有工程。");
    } else if (lines_.empty()) {
        text = QStringLiteral("这个工程没有要领的材料。");
    } else if (!lacking.isEmpty()) {
        text = QStringLiteral("库存不足：%1").arg(lacking.mid(0, kMostNamed).join(QStringLiteral("；")));
        if (lacking.size() > kMostNamed) {
            text += QStringLiteral("……共 %1 种，见“缺”一栏").arg(lacking.size());
        }
    }
    lacking_->setText(text);
}

std::vector<NoteLine> frmGCLL::Chosen() const {
    std::vector<NoteLine> chosen;
    for (const int row : lvw_->SelectedRows()) {
        const NoteLine& line = lines_[lvw_->Text(row, kPlaceColumn).toULongLong()].line;
        if (Val(line.count) > 0) chosen.push_back(line);
    }
    return chosen;
}

void frmGCLL::Confirm() {
    if (Chosen().empty()) return Tell(this, QStringLiteral("没有选中有库存的材料。"));
    accept();
}

}  // namespace kalvane
