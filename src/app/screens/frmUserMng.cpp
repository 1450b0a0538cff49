#include "app/screens/frmUserMng.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/startup.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr int kRightsInARow = 3;
constexpr int kListWidth = 180;
constexpr int kNameLength = 8;  // of the column

}  // namespace

frmUserMng::frmUserMng(QWidget* parent)
    : Screen(QStringLiteral("frmUserMng"), QStringLiteral("用户管理"), parent),
      lvw_(new ReportList(QStringLiteral("lvw"), {QStringLiteral("用户名")}, this)),
      txtUsrNm_(MakeBox(QStringLiteral("txtUsrNm"), this)),
      txtUsrPwd_(MakeBox(QStringLiteral("txtUsrPwd"), this)) {
    txtUsrNm_->setMaxLength(kNameLength);
    txtUsrPwd_->setEchoMode(QLineEdit::Password);
    const QString captions[] = {QStringLiteral("添加"), QStringLiteral("修改"), QStringLiteral("删除"),
                                QStringLiteral("保存"), QStringLiteral("取消")};
    for (std::size_t i = 0; i < cmdOpr_.size(); ++i) {
        cmdOpr_[i] = MakeButton(qPrintable(QStringLiteral("cmdOpr(%1)").arg(i)), captions[i], this);
    }
    lvw_->setMinimumWidth(kListWidth);
    lvw_->KeepOrder();  // as the accounts

    auto* body = new QWidget(this);
    auto* columns = new QHBoxLayout(body);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(16);
    columns->addWidget(lvw_);
    columns->addWidget(MakeFields(), 1);
    LayOutAboveButtons(this, body,
                       {cmdOpr_[kAdd], cmdOpr_[kEdit], cmdOpr_[kDelete], cmdOpr_[kSave], cmdOpr_[kCancel]});

    OnSignal(lvw_, &ReportList::itemSelectionChanged, this, [this] { ShowSelected(); });
    OnSignal(cmdOpr_[kAdd], &QPushButton::clicked, this, [this] { StartAdding(); });
    OnSignal(cmdOpr_[kEdit], &QPushButton::clicked, this, [this] { StartEditing(); });
    OnSignal(cmdOpr_[kDelete], &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(cmdOpr_[kSave], &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(cmdOpr_[kCancel], &QPushButton::clicked, this, [this] {
        Enter(Mode::Browse);
        ShowSelected();
    });
    Enter(Mode::Browse);
    Guarded(this, [this] { Load(); });
}

QWidget* frmUserMng::MakeFields() {
    auto* rights = new QGroupBox(QStringLiteral("权限"), this);
    auto* grid = new QGridLayout(rights);
    grid->setHorizontalSpacing(24);
    for (int i = 0; i < kRightCount; ++i) {
        auto* box = new QCheckBox(ToQt(RightCaption(static_cast<Right>(i))), rights);
        box->setObjectName(QStringLiteral("chkAuth(%1)").arg(i));
        grid->addWidget(box, i / kRightsInARow, i % kRightsInARow);
        chkAuth_[static_cast<std::size_t>(i)] = box;
    }
    auto* fields = new QWidget(this);
    auto* rows = new QVBoxLayout(fields);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(14);
    auto* boxes = new QFormLayout;
    boxes->addRow(QStringLiteral("用户名："), txtUsrNm_);
    boxes->addRow(QStringLiteral("密　码："), txtUsrPwd_);
    rows->addLayout(boxes);
    rows->addWidget(rights);
    rows->addStretch();
    return fields;
}

int frmUserMng::exec() {
    return users_ != nullptr ? Screen::exec() : Rejected;
}

void frmUserMng::Load() {
    MessageNotice notice(this);
    std::unique_ptr<Connection> users = OpenUserStore(App(), notice);
    if (users == nullptr) return;
    accounts_ = LoadUserAccounts(*users);
    for (const UserAccount& account : accounts_) lvw_->AddRow({ToQt(account.name)});
    users_ = std::move(users);
    if (!accounts_.empty()) lvw_->SelectRow(0);
}

void frmUserMng::Enter(Mode mode) {
    mode_ = mode;
    const bool isBrowsing = mode == Mode::Browse;
    txtUsrNm_->setEnabled(mode == Mode::Add);
    txtUsrPwd_->setEnabled(mode == Mode::Add);
    for (QCheckBox* box : chkAuth_) box->setEnabled(!isBrowsing);
    // A click on another user would overwrite what was typed for the new one.
    lvw_->setEnabled(mode != Mode::Add);
    for (const Command command : {kAdd, kEdit, kDelete}) cmdOpr_[command]->setEnabled(isBrowsing);
    for (const Command command : {kSave, kCancel}) cmdOpr_[command]->setEnabled(!isBrowsing);
    cmdOpr_[isBrowsing ? kEdit : kSave]->setDefault(true);
}

void frmUserMng::StartAdding() {
    txtUsrNm_->clear();
    txtUsrPwd_->clear();
    ShowRights({});
    Enter(Mode::Add);
    txtUsrNm_->setFocus();
}

void frmUserMng::StartEditing() {
    if (accounts_.empty()) return Tell(this, QStringLiteral("没有可编辑的用户！"));
    if (txtUsrNm_->text().isEmpty()) ShowSelected();
    Enter(Mode::Edit);
}

void frmUserMng::Delete() {
    if (accounts_.empty()) return Tell(this, QStringLiteral("没有可删除的用户！"));
    const int row = lvw_->SelectedOrTell(QStringLiteral("请选择要删除的用户！"));
    if (row < 0) return;
    const std::string name = accounts_[static_cast<std::size_t>(row)].name;
    if (name == kAdministrator) return Tell(this, QStringLiteral("系统管理员不能删除！"));
    const QString question = QStringLiteral("确认要删除该用户吗？") + ToQt(name);
    if (!UseDialogs().AskOkCancel(this, question, PromptTitle(), Dialogs::Answer::No)) return;
    DeleteUserAccount(*users_, name);
    accounts_.erase(accounts_.begin() + row);
    lvw_->RemoveRow(row);
    ShowSelected();
}

void frmUserMng::Save() {
    if (txtUsrNm_->text().isEmpty()) return TellAt(this, QStringLiteral("用户名不能为空！"), txtUsrNm_);
    if (txtUsrPwd_->text().isEmpty()) {
        return TellAt(this, QStringLiteral("用户名密码不能为空！"), txtUsrPwd_);
    }
    mode_ == Mode::Add ? SaveNew() : SaveRights();
}

void frmUserMng::SaveNew() {
    const std::optional<UserAccount> added =
        AddUserAccount(*users_, FromQt(txtUsrNm_->text()), FromQt(txtUsrPwd_->text()), RightsOfBoxes());
    if (!added) {
        UseDialogs().Message(this, QStringLiteral("用户名已存在，不能添加重复的项！"),
                             QStringLiteral("提示！"), NoticeIcon::Information);
        txtUsrNm_->setFocus();
        txtUsrNm_->selectAll();
        return;
    }
    accounts_.push_back(*added);
    Enter(Mode::Browse);
    lvw_->SelectRow(lvw_->AddRow({ToQt(added->name)}));
}

void frmUserMng::SaveRights() {
    UserAccount& account = accounts_[static_cast<std::size_t>(lvw_->SelectedRow())];
    const std::string rights = RightsOfBoxes();
    ChangeUserRights(*users_, account.name, rights);
    account.rights = rights;
    Enter(Mode::Browse);
}

void frmUserMng::ShowSelected() {
    const int row = lvw_->SelectedRow();
    const UserAccount account = row < 0 ? UserAccount() : accounts_[static_cast<std::size_t>(row)];
    txtUsrNm_->setText(ToQt(account.name));
    txtUsrPwd_->setText(ToQt(account.password));
    ShowRights(account.rights);
}

void frmUserMng::ShowRights(const std::string& rights) {
    const QString characters = ToQt(rights);
    for (int i = 0; i < kRightCount; ++i) {
        chkAuth_[static_cast<std::size_t>(i)]->setChecked(i < characters.size() &&
                                                          characters[i] == QLatin1Char('1'));
    }
}

std::string frmUserMng::RightsOfBoxes() const {
    std::string rights;
    for (const QCheckBox* box : chkAuth_) rights += box->isChecked() ? '1' : '0';
    return rights;
}

}  // namespace kalvane
