#include "app/screens/frmUserChangPwd.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/app_state.h"
#include "app/startup.h"
#include "app/user_admin.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 220;
}  // namespace

frmUserChangPwd::frmUserChangPwd(QWidget* parent)
    : EntryScreen(QStringLiteral("frmUserChangPwd"), QStringLiteral("修改密码"), parent) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* fields = new QFormLayout;
    fields->setSpacing(10);
    const QString captions[] = {QStringLiteral("原密码"), QStringLiteral("新密码"),
                                QStringLiteral("确认密码")};
    for (std::size_t i = 0; i < txtPwd_.size(); ++i) {
        lblPwd_[i] = new QLabel(captions[i], this);
        lblPwd_[i]->setObjectName(QStringLiteral("lblPwd(%1)").arg(i));
        txtPwd_[i] = new QLineEdit(this);
        txtPwd_[i]->setObjectName(QStringLiteral("txtPwd(%1)").arg(i));
        txtPwd_[i]->setEchoMode(QLineEdit::Password);
        txtPwd_[i]->setMinimumWidth(kBoxWidth);
        fields->addRow(lblPwd_[i], txtPwd_[i]);
    }
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this);
    ok->setDefault(true);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(20, 20, 20, 16);
    rows->setSpacing(18);
    rows->addLayout(fields);
    rows->addLayout(ButtonRow({ok, cancel}));
    rows->setSizeConstraint(QLayout::SetFixedSize);

    for (QLineEdit* box : txtPwd_) OnEnter(box, [this] { Change(); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Change(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { reject(); });
    Guarded(this, [this] {
        MessageNotice notice(this);
        users_ = OpenUserStore(App(), notice);
    });
}

int frmUserChangPwd::exec() {
    return users_ != nullptr ? Screen::exec() : Rejected;
}

void frmUserChangPwd::Change() {
    for (std::size_t i = 0; i < txtPwd_.size(); ++i) {
        if (!txtPwd_[i]->text().isEmpty()) continue;
        Tell(lblPwd_[i]->text() + QStringLiteral("不能为空！"));
        txtPwd_[i]->setFocus();
        return;
    }
    if (!IsLoginPassword(App(), FromQt(txtPwd_[0]->text()))) {
        Tell(QStringLiteral("原密码输入不正确！"));
        for (QLineEdit* box : txtPwd_) box->clear();
        txtPwd_[0]->setFocus();
        return;
    }
    if (txtPwd_[1]->text() != txtPwd_[2]->text()) {
        Tell(QStringLiteral("新密码与确认密码不相同！"));
        FocusAll(txtPwd_[1]);
        return;
    }
    ChangePassword(App(), *users_, FromQt(txtPwd_[1]->text()));
    Tell(QStringLiteral("密码修改成功！"));
    accept();
}

void frmUserChangPwd::Tell(const QString& text) {
    UseDialogs().Message(this, text, QStringLiteral("提示！"), NoticeIcon::Information);
}

}  // namespace kalvane
