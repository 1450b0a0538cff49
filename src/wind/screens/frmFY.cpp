#include "wind/screens/frmFY.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "wind/screens/load_chart_view.h"
#include "wind/screens/site_offer.h"
#include "wind/screens/wind_result.h"
#include "wind/sliding_form.h"
#include "wind/take_window.h"
#include "wind/wind_settings.h"

namespace kalvane {

frmFY::frmFY(ChooseWindows choose, QWidget* parent)
    : EntryScreen(QStringLiteral("frmFY"), QStringLiteral("风压校核"), parent),
      choose_(std::move(choose)),
      controls_(SlidingBoxes(), this),
      kept_(controls_.Texts()),
      chart_(new LoadChartView(this)),
      notes_(new QLabel(this)),
      check_(MakeButton("Command1", QStringLiteral("校核"), this)),
      take_(MakeButton("CmdQZGC", QStringLiteral("取自工程..."), this,
                       QStringLiteral("从工程中选一樘门窗填写，或选几樘一次校核"))),
      exit_(MakeButton("OKButton", QStringLiteral("退出"), this)) {
    LayOut();
    OfferSites(*App().settings, controls_.Box("txtCS"), controls_.Box("txtFYZ"));
    for (QWidget* control : controls_.All()) {
        OnEnter(control, [this, control] { controls_.FocusBehind(control, check_); });
    }
    for (const char* list : {"cmbXGLX", "cmbXGBH"}) {
        OnSignal(qobject_cast<QComboBox*>(controls_.Control(list)), &QComboBox::currentIndexChanged, this,
                 [this] { TakeInertia(); });
    }
    OnSignal(&controls_, &FormControls::Changed, this, [this] {
        FollowLayout();
        ShowChart();
    });
    OnSignal(check_, &QPushButton::clicked, this, [this] { Check(); });
    OnSignal(take_, &QPushButton::clicked, this, [this] { TakeFromProject(); });
    OnSignal(exit_, &QPushButton::clicked, this, [this] { Leave(); });
    FollowLayout();
    ShowChart();
}

void frmFY::LayOut() {
    auto* body = new QWidget(this);
    auto* columns = new QHBoxLayout(body);
    columns->setContentsMargins(0, 0, 0, 0);
    const auto add = [columns](std::initializer_list<QWidget*> parts) {
        auto* column = new QVBoxLayout;
        for (QWidget* part : parts) column->addWidget(part);
        column->addStretch();
        columns->addLayout(column);
    };
    add({controls_.Group(QStringLiteral("工程"), "txtGCMC", "rtxJHYJ"),
         controls_.Group(QStringLiteral("地点"), "txtCS", "cmbJZWLX")});
    add({controls_.Group(QStringLiteral("玻璃"), "cmbBLZL", "txtBLGD"),
         controls_.Group(QStringLiteral("窗扇和亮子"), "txtSKD", "txtLZGD"),
         controls_.Group(QStringLiteral("型钢和体型系数"), "cmbXGLX", "cmbFHZTXXS")});
    notes_->setObjectName(QStringLiteral("lblNotes"));
    notes_->setWordWrap(true);
    notes_->setStyleSheet(QStringLiteral("color: #c00000"));
    auto* right = new QVBoxLayout;
    right->addWidget(chart_, 1);
    right->addWidget(notes_);
    columns->addLayout(right, 1);
    check_->setDefault(true);
    LayOutAboveButtons(this, body, {take_, check_, exit_});
}

void frmFY::TakeInertia() {
    FormTexts texts = controls_.Texts();
    TakeSteelInertia(texts);
    controls_.Box("txtXGGXG")->setText(ToQt(texts.Text("txtXGGXG")));
}

void frmFY::FollowLayout() {
    const bool hasTopLight = LayoutOf(controls_.Texts()).hasTopLight;
    for (const char* box : {"txtLZKD", "txtLZGD"}) controls_.Control(box)->setEnabled(hasTopLight);
}

void frmFY::ShowChart() {
    chart_->Show(SlidingLoadChart(controls_.Texts()));
}

void frmFY::TakeFromProject() {
    const std::vector<ProjectWindow> windows = choose_(this);
    if (windows.size() > 1) return ShowResult(RunSlidingChecks(controls_.Texts(), windows));
    if (windows.empty()) return;
    FormTexts texts = controls_.Texts();
    const TakeNotes notes = TakeSlidingWindow(texts, windows.front());
    controls_.Show(texts);
    QStringList lines;
    for (const std::string& note : notes) lines << ToQt(note);
    notes_->setText(lines.join(QLatin1Char('\n')));
}

void frmFY::Check() {
    const FormTexts texts = controls_.Texts();
    if (const std::optional<Refusal> refusal = SlidingRefusal(texts)) {
        UseDialogs().Message(this, ToQt(refusal->message), {}, NoticeIcon::Information);
        controls_.Control(refusal->name)->setFocus();
        return;
    }
    ShowResult({{CheckSlidingWindow(texts)}, {}});
}

void frmFY::ShowResult(const CheckRun& run) {
    const FormTexts texts = controls_.Texts();
    RememberSite(*App().settings, {texts.Text("txtCS"), texts.Text("txtFYZ")});
    kept_ = texts;
    ShowSlidingResult(run, this);
}

}  // namespace kalvane
