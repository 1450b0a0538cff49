#include "wind/screens/FrmMainFY01.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QPushButton>

#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/page_output.h"
#include "ui/text.h"
#include "wind/full_check.h"
#include "wind/screens/cover_form.h"
#include "wind/screens/frmFY01.h"
#include "wind/screens/load_chart_view.h"
#include "wind/screens/site_offer.h"
#include "wind/screens/wind_result.h"
#include "wind/wind_settings.h"

namespace kalvane {

FrmMainFY01::FrmMainFY01(ChooseWindows choose, QWidget* parent)
    : EntryScreen(QStringLiteral("FrmMainFY01"), QStringLiteral("风压基础设置"), parent),
      choose_(std::move(choose)),
      controls_(FullBaseBoxes(), this),
      kept_(controls_.Texts()),
      chart_(new LoadChartView(this)) {
    auto* body = new QWidget(this);
    auto* columns = new QHBoxLayout(body);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(controls_.Group({}, "Text2", "Text8"), 0, Qt::AlignTop);
    columns->addWidget(chart_, 1);
    QPushButton* cover = MakeButton("CmdFM", QStringLiteral("封面设置..."), this);
    QPushButton* printCover = MakeButton("CmdFMPrint", QStringLiteral("打印封面"), this);
    QPushButton* next = MakeButton("CmdNext", QStringLiteral("下一步"), this);
    next->setDefault(true);
    QPushButton* exit = MakeButton("Command2", QStringLiteral("退出"), this);
    LayOutAboveButtons(this, body, {cover, printCover, next, exit});

    OfferSites(*App().settings, controls_.Box("Text2"), controls_.Box("Text3"));
    for (QWidget* control : controls_.All()) {
        OnEnter(control, [this, control, next] { controls_.FocusBehind(control, next); });
    }
    const auto showChart = [this] { chart_->Show(FullLoadChart(controls_.Texts())); };
    OnSignal(&controls_, &FormControls::Changed, this, showChart);
    OnSignal(cover, &QPushButton::clicked, this, [this] { EditCover(*App().settings, this); });
    OnSignal(printCover, &QPushButton::clicked, this, [this] { PrintCover(); });
    OnSignal(next, &QPushButton::clicked, this, [this] { Next(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    showChart();
}

void FrmMainFY01::Next() {
    const FormTexts texts = controls_.Texts();
    if (const std::optional<Refusal> refusal = FullRefusal(texts)) {
        return TellAt(this, ToQt(refusal->message), controls_.Control(refusal->name));
    }
    FindFullLoad(texts);  // so that a number beyond its width is reported here
    frmFY01 detail(choose_, {texts, window_}, this);
    bool isReported = false;
    while (detail.exec() == Accepted) {
        RememberSite(*App().settings, {texts.Text("Text2"), texts.Text("Text3")});
        isReported = true;
        ShowFullResult(detail.Run(), &detail);
    }
    window_ = detail.Texts().detail;
    controls_.Show(detail.Texts().base);
    if (isReported) kept_ = controls_.Texts();
}

void FrmMainFY01::PrintCover() {
    CoverTexts cover = LoadCover(*App().settings);
    cover.date = FromQt(Today());
    PrintDocument(this, QStringLiteral("封面"), {QPageSize::A4, QPageLayout::Portrait, {0, 0, 0, 0}},
                  [&cover](PageTarget& page) { PaintCover(page, cover); });
}

}  // namespace kalvane
