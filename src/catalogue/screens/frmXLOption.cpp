#include "catalogue/screens/frmXLOption.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/command_buttons.h"
#include "ui/guard.h"

namespace kalvane {

frmXLOption::frmXLOption(QWidget* parent)
    : Screen(QStringLiteral("frmXLOption"), QStringLiteral("选项"), parent),
      series_(new QRadioButton(QStringLiteral("添加系列"))) {
    auto* frame = new QGroupBox(QStringLiteral("选择要添加的结点选项"), this);
    auto* maker = new QRadioButton(QStringLiteral("添加厂家"), frame);
    maker->setObjectName(QStringLiteral("Option1"));
    maker->setChecked(true);
    series_->setObjectName(QStringLiteral("Option2"));
    auto* options = new QVBoxLayout(frame);
    options->addWidget(maker);
    options->addWidget(series_);
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("&Y 确定"), this);
    ok->setDefault(true);
    LayOutAboveButtons(this, frame, {ok});
    OnSignal(ok, &QPushButton::clicked, this, [this] { accept(); });
}

bool frmXLOption::IsSeries() const {
    return series_->isChecked();
}

}  // namespace kalvane
