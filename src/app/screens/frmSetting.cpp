#include "app/screens/frmSetting.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/app_state.h"
#include "app/company_settings.h"
#include "app/startup.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr int kBoxWidth = 360;
constexpr int kViewWidth = 40;
constexpr std::int16_t kWindCheckHere = 0;

/// Two choices side by side, of which one holds.
QHBoxLayout* Pair(QRadioButton* first, QRadioButton* second) {
    auto* group = new QButtonGroup(first);
    auto* row = new QHBoxLayout;
    for (QRadioButton* button : {first, second}) {
        group->addButton(button);
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

}  // namespace

frmSetting::frmSetting(QWidget* parent)
    : Screen(QStringLiteral("frmSetting"), QStringLiteral("设置用户"), parent) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* fields = new QFormLayout;
    fields->setSpacing(10);
    txtCompany_ = AddBox(*fields, "txtCompany", QStringLiteral("公司名称："));
    txtTelnum_ = AddBox(*fields, "txtTelnum", QStringLiteral("联系电话："));
    txtAddress_ = AddBox(*fields, "txtAddress", QStringLiteral("公司地址："));
    OptExcel_ = AddChoice("OptExcel", QStringLiteral("Excel"));
    OptText_ = AddChoice("OptText", QStringLiteral("文本文件"));
    fields->addRow(QStringLiteral("导出文件 类    型："), Pair(OptExcel_, OptText_));
    optStandard_ = AddChoice("optStandard", QStringLiteral("标准"));
    optEasy_ = AddChoice("optEasy", QStringLiteral("精简"));
    fields->addRow(QStringLiteral("校核模型："), Pair(optStandard_, optEasy_));
    txtClPath_ = AddBox(*fields, "txtClPath", QStringLiteral("材料数据："), "cmdView1");
    txtCkPath_ = AddBox(*fields, "txtCkPath", QStringLiteral("仓库数据："), "cmdView2");
    QPushButton* ok = MakeButton("cmdOK", QStringLiteral("确定"), this);
    ok->setDefault(true);
    QPushButton* cancel = MakeButton("cmdCancel", QStringLiteral("取消"), this);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(20, 20, 20, 16);
    rows->setSpacing(18);
    rows->addLayout(fields);
    rows->addLayout(ButtonRow({ok, cancel}));
    rows->setSizeConstraint(QLayout::SetFixedSize);

    OnSignal(ok, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { reject(); });
    Load();
}

QLineEdit* frmSetting::AddBox(QFormLayout& fields, const char* name, const QString& label, const char* view) {
    auto* box = new QLineEdit(this);
    box->setObjectName(QLatin1String(name));
    box->setMinimumWidth(kBoxWidth);
    if (view == nullptr) {
        fields.addRow(label, box);
        return box;
    }
    // The paths are for the operator's information, so there is nothing to choose.
    const QString note = QStringLiteral("仅供查看：数据库总是从启动文件夹打开。");
    QPushButton* button = MakeButton(view, QStringLiteral("..."), this, note);
    button->setAutoDefault(false);
    button->setMaximumWidth(kViewWidth);
    box->setToolTip(note);
    auto* row = new QHBoxLayout;
    row->addWidget(box);
    row->addWidget(button);
    fields.addRow(label, row);
    return box;
}

QRadioButton* frmSetting::AddChoice(const char* name, const QString& caption) {
    auto* button = new QRadioButton(caption, this);
    button->setObjectName(QLatin1String(name));
    return button;
}

void frmSetting::Load() {
    const CompanySettings settings = ReadCompanySettings(*App().settings, App().folder);
    txtCompany_->setText(ToQt(settings.name));
    txtTelnum_->setText(ToQt(settings.telephone));
    txtAddress_->setText(ToQt(settings.address));
    txtClPath_->setText(ToQt(settings.mainStorePath));
    txtCkPath_->setText(ToQt(settings.stockStorePath));
    ReadOutputSettings(App(), kWindCheckHere);
    (App().outputFileType != 0 ? OptText_ : OptExcel_)->setChecked(true);
    (App().windCheckOption != 0 ? optEasy_ : optStandard_)->setChecked(true);
}

void frmSetting::Save() {
    const CompanySettings settings = {FromQt(txtCompany_->text()), FromQt(txtTelnum_->text()),
                                      FromQt(txtAddress_->text()), FromQt(txtClPath_->text()),
                                      FromQt(txtCkPath_->text())};
    SaveCompanySettings(*App().settings, settings, !OptExcel_->isChecked(), !optStandard_->isChecked());
    ReadOutputSettings(App(), kWindCheckHere);
    accept();
}

}  // namespace kalvane
