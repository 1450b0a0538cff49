#include "app/screens/frmUserChangPwd.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "app/enc_decrypt.h"
#include "app/startup.h"
#include "app/user_accounts.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr int kBoxWidth = 200;
constexpr int kPasswordLength = 12;  // the column holds four digits for each character
const QString kTitle = QStringLiteral("提示！");

}  // namespace

frmUserChangPwd::frmUserChangPwd(QWidget* parent)
    : Screen(QStringLiteral("frmUserChangPwd"), QStringLiteral("修改密码"), parent) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    const QString captions[] = {QStringLiteral("原密码"), QStringLiteral("新密码"),
                                QStringLiteral("确认密码")};
    auto* fields = new QGridLayout;
    fields->setSpacing(10);
    for (int i = 0; i < kBoxCount; ++i) {
        auto* label = new QLabel(captions[i], this);
        label->setObjectName(QStringLiteral("lblPwd(%1)").arg(i));
        QLineEdit* box = MakeBox(QStringLiteral("txtPwd(%1)").arg(i), this, kBoxWidth);
        box->setEchoMode(QLineEdit::Password);
        box->setMaxLength(kPasswordLength);
        fields->addWidget(label, i, 0);
        fields->addWidget(box, i, 1);
        lblPwd_[static_cast<std::size_t>(i)] = label;
        txtPwd_[static_cast<std::size_t>(i)] = box;
    }
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);
    LayOutEntry(this, fields, ok, cancel);

    OnSignal(ok, &QPushButton::clicked, this, [this] { Change(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { OpenUsers(); });
}

int frmUserChangPwd::exec() {
    return users_ != nullptr ? Screen::exec() : Rejected;
}

void frmUserChangPwd::OpenUsers() {
    MessageNotice notice(this);
    users_ = OpenUserStore(App(), notice);
}

void frmUserChangPwd::Change() {
    for (std::size_t i = 0; i < txtPwd_.size(); ++i) {
        if (!txtPwd_[i]->text().isEmpty()) continue;
        return Refuse(lblPwd_[i]->text() + QStringLiteral("不能为空！"), static_cast<Box>(i));
    }
    const std::string old = clsEncDecrypt().KeyEncBuf(FromQt(txtPwd_[kOld]->text()), kPasswordKey);
    if (old != App().userPwd) {
        for (QLineEdit* box : txtPwd_) box->clear();
        return Refuse(QStringLiteral("原密码输入不正确！"), kOld);
    }
    if (txtPwd_[kNew]->text() != txtPwd_[kRepeated]->text()) {
        return Refuse(QStringLiteral("新密码与确认密码不相同！"), kNew);
    }
    ChangeUserPassword(*users_, App().userName, FromQt(txtPwd_[kNew]->text()));
    UseDialogs().Message(this, QStringLiteral("密码修改成功！"), kTitle, NoticeIcon::Information);
    accept();
}

void frmUserChangPwd::Refuse(const QString& text, Box box) {
    UseDialogs().Message(this, text, kTitle, NoticeIcon::Information);
    txtPwd_[box]->setFocus();
    txtPwd_[box]->selectAll();
}

}  // namespace kalvane
