#include "app/screens/frmLogin.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/login.h"
#include "app/startup.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kTriesAllowed = 3;
constexpr int kPictureSize = 64;
constexpr int kFieldWidth = 220;
}  // namespace

frmLogin::frmLogin(QWidget* parent)
    : Screen(QStringLiteral("frmLogin"), QStringLiteral("登录"), parent),
      cboUsrNm_(new QComboBox(this)),
      txtPassword_(MakeBox(QStringLiteral("txtPassword"), this)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    cboUsrNm_->setObjectName(QStringLiteral("cboUsrNm"));
    cboUsrNm_->setMinimumWidth(kFieldWidth);
    txtPassword_->setEchoMode(QLineEdit::Password);

    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(QStringLiteral(":/ui/kalvane.svg")).pixmap(kPictureSize, kPictureSize));
    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("用户名："), cboUsrNm_);
    fields->addRow(QStringLiteral("密　码："), txtPassword_);

    QPushButton* cmdOK = MakeButton("cmdOK", QStringLiteral("确定"), this);
    cmdOK->setDefault(true);
    QPushButton* cmdCancel = MakeButton("cmdCancel", QStringLiteral("取消"), this);

    auto* top = new QHBoxLayout;
    top->setSpacing(24);
    top->addWidget(picture, 0, Qt::AlignVCenter);
    top->addLayout(fields);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 24, 24, 18);
    rows->setSpacing(20);
    rows->addLayout(top);
    rows->addLayout(ButtonRow({cmdOK, cmdCancel}));
    rows->setSizeConstraint(QLayout::SetFixedSize);

    OnSignal(cmdOK, &QPushButton::clicked, this, [this] { LogIn(); });
    OnSignal(cmdCancel, &QPushButton::clicked, this, [this] { Leave(); });
    App().loginOK = false;
    Guarded(this, [this] { Load(); });
}

int frmLogin::exec() {
    return users_ != nullptr ? Screen::exec() : Rejected;
}

void frmLogin::Load() {
    MessageNotice notice(this);
    std::unique_ptr<Connection> users = OpenUserStore(App(), notice);
    if (users == nullptr) return;
    for (const std::string& name : UserNames(*users)) cboUsrNm_->addItem(ToQt(name));
    cboUsrNm_->setCurrentIndex(-1);
    users_ = std::move(users);
}

void frmLogin::LogIn() {
    if (cboUsrNm_->currentText().isEmpty()) {
        Tell(this, QStringLiteral("请选择要登陆的用户"));
        cboUsrNm_->setFocus();
        return;
    }
    if (txtPassword_->text().isEmpty()) {
        Tell(this, QStringLiteral("密码不能为空！请输入"));
        txtPassword_->setFocus();
        return;
    }
    if (kalvane::LogIn(App(), *users_, FromQt(cboUsrNm_->currentText()), FromQt(txtPassword_->text()))) {
        accept();
    } else {
        RefuseTry();
    }
}

void frmLogin::RefuseTry() {
    Tell(this, QStringLiteral("输入的密码不正确！"));
    txtPassword_->clear();
    txtPassword_->setFocus();
    // The message speaks of three; it is the fourth wrong try that ends the login.
    if (++wrongTries_ > kTriesAllowed) {
        UseDialogs().Message(this, QStringLiteral("你输入已超过三次了！"), PromptTitle(), NoticeIcon::Error);
        reject();
    }
}

}  // namespace kalvane
