#include "wind/screens/frmFY01.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "wind/take_window.h"

namespace kalvane {

frmFY01::frmFY01(ChooseWindows choose, const FullTexts& texts, QWidget* parent)
    : EntryScreen(QStringLiteral("frmFY01"), QStringLiteral("风压校核设置"), parent),
      choose_(std::move(choose)),
      base_(texts.base),
      controls_(FullDetailBoxes(), this),
      window_(new QLabel(this)),
      notes_(new QLabel(this)),
      check_(MakeButton("OKButton", QStringLiteral("校核"), this)) {
    controls_.Box("Text5")->setReadOnly(true);
    check_->setDefault(true);
    ShowWindow(texts);
    notes_->setObjectName(QStringLiteral("lblNotes"));
    notes_->setWordWrap(true);
    notes_->setStyleSheet(QStringLiteral("color: #c00000"));
    auto* body = new QWidget(this);
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* columns = new QHBoxLayout;
    columns->addWidget(controls_.Group(QStringLiteral("洞口、型材和型钢"), "Text1", "Text10"), 0,
                       Qt::AlignTop);
    columns->addWidget(controls_.Group(QStringLiteral("玻璃和螺钉"), "Text6", "Text5"), 0, Qt::AlignTop);
    rows->addWidget(window_);
    rows->addLayout(columns);
    rows->addWidget(notes_);
    rows->addStretch();
    QPushButton* take = MakeButton("CmdQZGC", QStringLiteral("取自工程..."), this,
                                   QStringLiteral("从工程中选一樘门窗填写，或选几樘一次校核"));
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);
    LayOutAboveButtons(this, body, {take, check_, cancel});

    for (QWidget* control : controls_.All()) {
        OnEnter(control, [this, control] { controls_.FocusBehind(control, check_); });
    }
    for (const char* box : {"Text11", "Text12"}) {
        OnSignal(controls_.Box(box), &QLineEdit::textChanged, this, [this] { ShowRatio(); });
    }
    OnSignal(take, &QPushButton::clicked, this, [this] { TakeFromProject(); });
    OnSignal(check_, &QPushButton::clicked, this, [this] { Check(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
}

void frmFY01::ShowWindow(const FullTexts& texts) {
    base_ = texts.base;
    controls_.Show(texts.detail);
    window_->setText(QStringLiteral("工程门窗：") + ToQt(base_.Text("Text1")));
}

void frmFY01::ShowRatio() {
    const QString width = controls_.Box("Text11")->text();
    const QString length = controls_.Box("Text12")->text();
    if (width.isEmpty() || length.isEmpty()) return;
    controls_.Box("Text5")->setText(ToQt(EdgeRatio(FromQt(width), FromQt(length))));
}

void frmFY01::TakeFromProject() {
    const std::vector<ProjectWindow> windows = choose_(this);
    if (windows.empty()) return;
    FullTexts texts = Texts();
    if (windows.size() > 1) {
        run_ = RunFullChecks(texts, windows);
        accept();
        return;
    }
    QStringList lines;
    for (const std::string& note : TakeFullWindow(texts, windows.front())) lines << ToQt(note);
    notes_->setText(lines.join(QLatin1Char('\n')));
    ShowWindow(texts);
}

void frmFY01::Check() {
    run_ = {{CheckFullWindow(Texts())}, {}};
    accept();
}

}  // namespace kalvane
