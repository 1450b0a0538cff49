#include "app/screens/frmUserMng.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/app_state.h"
#include "app/startup.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(820, 460);
constexpr int kRightColumns = 3;
const QString kTitle = QStringLiteral("提示");

QStringList ToRow(const User& user) {
    QStringList granted;
    for (int i = 0; i < kRightCount; ++i) {
        const auto right = static_cast<Right>(i);
        if (IsGranted(user.rights, right)) granted << ToQt(RightCaption(right));
    }
    return {ToQt(user.name),
            granted.size() == kRightCount ? QStringLiteral("全部") : granted.join(QStringLiteral("、"))};
}

}  // namespace

frmUserMng::frmUserMng(QWidget* parent)
    : Screen(QStringLiteral("frmUserMng"), QStringLiteral("用户管理"), parent),
      lvw_(new ReportList(QStringLiteral("lvw"), {QStringLiteral("用户名"), QStringLiteral("权限")}, this)),
      txtUsrNm_(new QLineEdit(this)),
      txtUsrPwd_(new QLineEdit(this)) {
    txtUsrNm_->setObjectName(QStringLiteral("txtUsrNm"));
    txtUsrPwd_->setObjectName(QStringLiteral("txtUsrPwd"));
    txtUsrPwd_->setEchoMode(QLineEdit::Password);
    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("用户名："), txtUsrNm_);
    fields->addRow(QStringLiteral("密　码："), txtUsrPwd_);

    auto* rights = new QGroupBox(QStringLiteral("权限"), this);
    auto* grid = new QGridLayout(rights);
    for (int i = 0; i < kRightCount; ++i) {
        auto* box = new QCheckBox(ToQt(RightCaption(static_cast<Right>(i))), rights);
        box->setObjectName(QStringLiteral("chkAuth(%1)").arg(i));
        grid->addWidget(box, i / kRightColumns, i % kRightColumns);
        chkAuth_[static_cast<std::size_t>(i)] = box;
    }

    QPushButton* add = MakeButton("cmdOpr(0)", QStringLiteral("添加"), this);
    QPushButton* edit =
        MakeButton("cmdOpr(1)", QStringLiteral("修改"), this, QStringLiteral("修改所选用户的权限"));
    QPushButton* del = MakeButton("cmdOpr(2)", QStringLiteral("删除"), this);
    QPushButton* save = MakeButton("cmdOpr(3)", QStringLiteral("保存"), this);
    QPushButton* cancel = MakeButton("cmdOpr(4)", QStringLiteral("取消"), this);
    for (QPushButton* button : {add, edit, del, cancel}) button->setAutoDefault(false);
    save->setDefault(true);

    auto* details = new QVBoxLayout;
    details->setSpacing(14);
    details->addLayout(fields);
    details->addWidget(rights);
    details->addStretch();
    auto* body = new QWidget(this);
    auto* columns = new QHBoxLayout(body);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(16);
    columns->addWidget(lvw_, 1);
    columns->addLayout(details);
    LayOutAboveButtons(this, body, {add, edit, del, save, cancel});
    resize(kFirstSize);

    OnSignal(lvw_, &ReportList::itemSelectionChanged, this, [this] { ShowSelected(); });
    OnSignal(add, &QPushButton::clicked, this, [this] { Add(); });
    OnSignal(edit, &QPushButton::clicked, this, [this] { Edit(); });
    OnSignal(del, &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(save, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Cancel(); });
    EnableNameAndPassword(false);
    Guarded(this, [this] { Load(); });
}

int frmUserMng::exec() {
    return store_ != nullptr ? Screen::exec() : Rejected;
}

void frmUserMng::Load() {
    MessageNotice notice(this);
    std::unique_ptr<Connection> store = OpenUserStore(App(), notice);
    if (store == nullptr) return;
    users_ = ListUsers(*store);
    for (const User& user : users_) lvw_->AddRow(ToRow(user));
    store_ = std::move(store);
}

void frmUserMng::ShowSelected() {
    const int row = lvw_->SelectedRow();
    const User user = row < 0 ? User() : users_[static_cast<std::size_t>(row)];
    txtUsrNm_->setText(ToQt(user.name));
    txtUsrPwd_->setText(ToQt(user.scrambledPassword));
    CheckRights(user.rights);
}

void frmUserMng::Add() {
    isAdding_ = true;
    txtUsrNm_->clear();
    txtUsrPwd_->clear();
    CheckRights({});
    EnableNameAndPassword(true);
    txtUsrNm_->setFocus();
}

void frmUserMng::Edit() {
    if (users_.empty()) return Tell(QStringLiteral("没有可编辑的用户！"), kTitle);
    if (txtUsrNm_->text().isEmpty()) ShowSelected();
    isAdding_ = false;
    EnableNameAndPassword(false);
}

void frmUserMng::Delete() {
    if (users_.empty()) return Tell(QStringLiteral("没有可删除的用户！"), kTitle);
    const int row = lvw_->SelectedRow();
    if (row < 0) return Tell(QStringLiteral("请选择要删除的用户！"), kTitle);
    const std::string name = users_[static_cast<std::size_t>(row)].name;
    if (IsAdministrator(name)) return Tell(QStringLiteral("系统管理员不能删除！"), kTitle);
    if (!UseDialogs().AskOkCancel(this, QStringLiteral("确认要删除该用户吗？") + ToQt(name), kTitle)) return;
    DeleteUser(*store_, name);
    users_.erase(users_.begin() + row);
    lvw_->RemoveRow(row);
    ShowSelected();
}

void frmUserMng::Save() {
    const std::string name = FromQt(txtUsrNm_->text());
    const std::string password = FromQt(txtUsrPwd_->text());
    if (name.empty()) return Tell(QStringLiteral("用户名不能为空！"), kTitle);
    if (password.empty()) return Tell(QStringLiteral("用户名密码不能为空！"), kTitle);
    if (isAdding_) {
        SaveNew(name, password);
    } else {
        SaveRights(name);
    }
}

void frmUserMng::SaveNew(const std::string& name, const std::string& password) {
    if (UserExists(*store_, name)) {
        return Tell(QStringLiteral("用户名已存在，不能添加重复的项！"), QStringLiteral("提示！"));
    }
    users_.push_back(AddUser(*store_, name, password, CheckedRights()));
    lvw_->SelectRow(lvw_->AddRow(ToRow(users_.back())));
    EnableNameAndPassword(false);
}

void frmUserMng::SaveRights(const std::string& name) {
    UpdateRights(*store_, name, CheckedRights());
    for (std::size_t i = 0; i < users_.size(); ++i) {
        if (users_[i].name != name) continue;
        users_[i].rights = CheckedRights();
        lvw_->SetRow(static_cast<int>(i), ToRow(users_[i]));
    }
    EnableNameAndPassword(false);
}

void frmUserMng::Cancel() {
    ShowSelected();
    EnableNameAndPassword(false);
}

void frmUserMng::Tell(const QString& text, const QString& title) {
    UseDialogs().Message(this, text, title, NoticeIcon::Information);
}

void frmUserMng::EnableNameAndPassword(bool enabled) {
    txtUsrNm_->setEnabled(enabled);
    txtUsrPwd_->setEnabled(enabled);
}

std::string frmUserMng::CheckedRights() const {
    std::string rights;
    for (const QCheckBox* box : chkAuth_) rights += box->isChecked() ? '1' : '0';
    return rights;
}

void frmUserMng::CheckRights(const std::string& rights) {
    const QString characters = ToQt(rights);
    for (std::size_t i = 0; i < chkAuth_.size(); ++i) {
        chkAuth_[i]->setChecked(characters.mid(static_cast<int>(i), 1) == QStringLiteral("1"));
    }
}

}  // namespace kalvane
