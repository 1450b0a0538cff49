#include "output/screens/frmTJMX.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "numeric/number.h"
#include "output/cents.h"
#include "output/material_summary.h"
#include "output/tally_tables.h"
#include "output/tally_trace.h"
#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(1060, 700);
constexpr int kAmountColumn = 6;
constexpr const char* kQuery = "Select BN,名称,规格,单价,DW,数量,金额 from OutTJ where 名称<>'' Order by BN";

QString SumText(const CheckedRow& row, const std::vector<TraceLine>& lines) {
    double pieces = 0;
    for (const TraceLine& line : lines) pieces += Val(line.quantity);
    return QStringLiteral("第 %1 行：%2 行公式，合计 %3 件。")
        .arg(row.number)
        .arg(lines.size())
        .arg(ToQt(ShortText(pieces)));
}

}  // namespace

frmTJMX::frmTJMX(GatheringRecord record, ShowDesigner showDesigner, QWidget* parent)
    : Screen(QStringLiteral("frmTJMX"), QStringLiteral("逐行核对"), parent),
      record_(std::move(record)),
      showDesigner_(std::move(showDesigner)),
      view_(new QComboBox(this)),
      tally_(new ReportList(
          QStringLiteral("LvwTJ"),
          {QStringLiteral("编号"), QStringLiteral("名称"), QStringLiteral("规格"), QStringLiteral("单价"),
           QStringLiteral("单位"), QStringLiteral("数量"), QStringLiteral("金额"), QStringLiteral("标记")})),
      trace_(new ReportList(QStringLiteral("LvwMX"),
                            {QStringLiteral("门窗名称"), QStringLiteral("门窗部位"), QStringLiteral("樘数"),
                             QStringLiteral("名称"), QStringLiteral("公式"), QStringLiteral("代入"),
                             QStringLiteral("长"), QStringLiteral("宽"), QStringLiteral("数量")})),
      sum_(new QLabel(QStringLiteral("双击一行，看它由哪些门窗的哪些公式得来。"), this)),
      note_(new QLabel(this)) {
    view_->setObjectName(QStringLiteral("cmbTJ"));
    view_->addItems({QStringLiteral("统计"), QStringLiteral("明细")});
    sum_->setObjectName(QStringLiteral("lblHJ"));
    note_->setObjectName(QStringLiteral("lblTS"));
    note_->setWordWrap(true);
    tally_->KeepOrder();
    auto* traced = new QWidget;
    auto* tracedRows = new QVBoxLayout(traced);
    tracedRows->setContentsMargins(0, 0, 0, 0);
    tracedRows->addWidget(sum_);
    tracedRows->addWidget(trace_, 1);
    auto* lists = new QSplitter(Qt::Vertical);
    lists->addWidget(tally_);
    lists->addWidget(traced);
    auto* source = new QLabel(ToQt(record_.Text()), this);
    source->setWordWrap(true);
    auto* body = new QWidget;
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{source, view_}) rows->addWidget(part);
    rows->addWidget(lists, 1);
    rows->addWidget(note_);
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("返回 &E"), this, QStringLiteral("Esc"));
    QPushButton* design = MakeButton("CmdDesign", QStringLiteral("改公式 &D"), this,
                                     QStringLiteral("打开下面选取的公式所在的窗型"));
    LayOutAboveButtons(this, body, {design, exit});
    resize(kFirstSize);

    OnSignal(view_, &QComboBox::currentIndexChanged, this, [this] { Load(); });
    OnSignal(tally_, &ReportList::DoubleClicked, this, [this] { Trace(); });
    OnSignal(design, &QPushButton::clicked, this, [this] { Design(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { Load(); });
}

TallyView frmTJMX::View() const {
    return view_->currentIndex() == 0 ? TallyView::Summary : TallyView::Detail;
}

void frmTJMX::Load() {
    const OutputView view = View() == TallyView::Summary ? OutputView::cmdOut2 : OutputView::cmdOut3;
    RebuildForOutput(App().Main(), view, {}, SharedFieldSlots(), App().tally);
    rows_ = CheckTally(App().Main(), {}, View());
    tally_->Clear();
    trace_->Clear();
    for (const std::vector<std::string>& row : TextRows(App().Main().OpenCursor(kQuery))) {
        QStringList texts;
        for (const std::string& text : row) texts << ToQt(text);
        const CheckedRow& checked = rows_[static_cast<std::size_t>(texts.front().toInt()) - 1];
        texts << (checked.isInCatalogue ? QString() : QStringLiteral("* 材料库中没有"));
        const int place = tally_->AddRow(texts, texts.front());
        if (!checked.isInCatalogue || checked.exact == 0) continue;
        tally_->topLevelItem(place)->setToolTip(
            kAmountColumn, QStringLiteral("准确金额 %1 元").arg(ToQt(CentsText(checked.exact))));
    }
    QStringList note;
    for (const std::string& line : PriceNote(App().Main(), rows_, View(), record_.windows))
        note << ToQt(line);
    note_->setText(note.join(QLatin1Char('\n')));
    note_->setVisible(!note.isEmpty());
}

void frmTJMX::Trace() {
    const int place = tally_->SelectedRow();
    if (place < 0) return;
    const CheckedRow& row = rows_[static_cast<std::size_t>(tally_->Tag(place).toInt()) - 1];
    const std::vector<TraceLine> lines = TraceGroup(App().Main(), record_.windows, row.group);
    trace_->Clear();
    for (const TraceLine& line : lines) {
        const QStringList texts{ToQt(line.window), ToQt(line.position), ToQt(line.count),
                                ToQt(line.name),   ToQt(line.formula),  ToQt(line.values),
                                ToQt(line.length), ToQt(line.width),    ToQt(line.quantity)};
        trace_->AddRow(texts, ToQt(line.typeId));
    }
    sum_->setText(SumText(row, lines));
}

void frmTJMX::Design() {
    const int place = trace_->SelectedOrTell(QStringLiteral("请先双击上面的一行，再选取下面的一条公式。"));
    if (place < 0) return;
    showDesigner_(this, FromQt(trace_->Tag(place)));
    Load();
}

}  // namespace kalvane
