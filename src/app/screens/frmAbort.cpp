#include "app/screens/frmAbort.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace kalvane {
namespace {
constexpr int kPictureSize = 96;
}  // namespace

frmAbort::frmAbort(QWidget* parent) : Screen(QStringLiteral("frmAbort"), QStringLiteral("关于"), parent) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(QStringLiteral(":/ui/kalvane.svg")).pixmap(kPictureSize, kPictureSize));
    auto* text = new QLabel(QStringLiteral("<h2>KalvaneV7.0</h2>"
                                           "<p>塑钢门窗设计、工程管理与材料优化系统</p>"
                                           "<p>材料库、窗型设计、工程结算、下料优化、风压校核、仓库管理</p>"),
                            this);
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(32, 24, 32, 24);
    all->setSpacing(24);
    all->addWidget(picture, 0, Qt::AlignVCenter);
    all->addWidget(text);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAbort::mousePressEvent(QMouseEvent*) {
    accept();
}

}  // namespace kalvane
