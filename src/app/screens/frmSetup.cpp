#include "app/screens/frmSetup.h"

#include <QIcon>
#include <QLabel>
#include <QStringList>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/guard.h"

namespace kalvane {
namespace {

constexpr int kCloseMilliseconds = 1500;
constexpr int kTextMilliseconds = 300;
constexpr QSize kPictureSize(480, 260);

const QStringList& Texts() {
    static const QStringList texts = {
        QStringLiteral("正在搜索文件..........."),
        QStringLiteral("正在加载文件..........."),
        QStringLiteral("正在初始化系统............"),
    };
    return texts;
}

QLabel* Caption(const QString& text, qreal sizeFactor, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * sizeFactor);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Qt::white);  // on the picture, whatever the theme
    label->setPalette(palette);
    return label;
}

}  // namespace

frmSetup::frmSetup(InstanceLock& lock)
    : QDialog(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      lock_(lock),
      lblShow_(Caption(QString(), 1, this)),
      timer1_(new QTimer(this)),
      timer2_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmSetup"));
    setWindowTitle(QStringLiteral("KalvaneV7.0"));
    lblShow_->setObjectName(QStringLiteral("lblShow"));

    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(QStringLiteral(":/ui/splash.svg")).pixmap(kPictureSize));
    picture->setScaledContents(true);
    picture->setFixedSize(kPictureSize);
    auto* onPicture = new QVBoxLayout(picture);
    onPicture->setContentsMargins(44, 60, 44, 28);
    onPicture->addWidget(Caption(QStringLiteral("KalvaneV7.0"), 2.2, picture));
    onPicture->addWidget(Caption(QStringLiteral("塑钢门窗设计与管理"), 1.2, picture));
    onPicture->addStretch();
    onPicture->addWidget(lblShow_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(picture);

    timer1_->setObjectName(QStringLiteral("Timer1"));
    timer1_->setTimerType(Qt::PreciseTimer);
    timer1_->setInterval(kCloseMilliseconds);
    timer2_->setObjectName(QStringLiteral("Timer2"));
    timer2_->setTimerType(Qt::PreciseTimer);
    timer2_->setInterval(kTextMilliseconds);
    OnSignal(timer1_, &QTimer::timeout, this, [this] { CloseWhenDone(); });
    OnSignal(timer2_, &QTimer::timeout, this, [this] { ShowNextText(); });
}

int frmSetup::exec() {
    bool alone = false;
    Guarded(this, [&] { alone = lock_.Acquire(); });
    if (!alone) return Rejected;
    timer2_->start();
    timer1_->start();
    return QDialog::exec();
}

void frmSetup::ShowNextText() {
    lblShow_->setText(Texts()[shown_++]);
    if (shown_ == Texts().size()) {
        allShown_ = true;
        timer2_->stop();
    }
}

void frmSetup::CloseWhenDone() {
    if (allShown_) accept();
}

}  // namespace kalvane
