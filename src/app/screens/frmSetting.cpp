#include "app/screens/frmSetting.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include "app/company_settings.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr int kBoxWidth = 360;

QRadioButton* MakeChoice(const char* name, const QString& caption, QWidget* screen) {
    auto* choice = new QRadioButton(caption, screen);
    choice->setObjectName(QLatin1String(name));
    return choice;
}

void AddChoices(QFormLayout& fields, const QString& label, QRadioButton* first, QRadioButton* second) {
    auto* group = new QButtonGroup(first->parentWidget());
    group->addButton(first);
    group->addButton(second);
    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(first);
    row->addWidget(second);
    row->addStretch();
    fields.addRow(label, row);
}

}  // namespace

frmSetting::frmSetting(QWidget* parent)
    : Screen(QStringLiteral("frmSetting"), QStringLiteral("设置用户"), parent),
      OptExcel_(MakeChoice("OptExcel", QStringLiteral("Excel"), this)),
      OptText_(MakeChoice("OptText", QStringLiteral("文本文件"), this)),
      optStandard_(MakeChoice("optStandard", QStringLiteral("标准"), this)),
      optEasy_(MakeChoice("optEasy", QStringLiteral("精简"), this)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* fields = new QFormLayout;
    fields->setSpacing(10);
    txtCompany_ = AddBox(*fields, "txtCompany", QStringLiteral("公司名称："));
    txtTelnum_ = AddBox(*fields, "txtTelnum", QStringLiteral("联系电话："));
    txtAddress_ = AddBox(*fields, "txtAddress", QStringLiteral("公司地址："));
    AddChoices(*fields, QStringLiteral("导出文件 类    型："), OptExcel_, OptText_);
    AddChoices(*fields, QStringLiteral("校核模型："), optStandard_, optEasy_);
    txtClPath_ = AddPath(*fields, "txtClPath", "cmdView1", QStringLiteral("材料数据："));
    txtCkPath_ = AddPath(*fields, "txtCkPath", "cmdView2", QStringLiteral("仓库数据："));

    QPushButton* ok = MakeButton("cmdOK", QStringLiteral("确定"), this);
    QPushButton* cancel = MakeButton("cmdCancel", QStringLiteral("取消"), this);
    LayOutEntry(this, fields, ok, cancel);

    OnSignal(ok, &QPushButton::clicked, this, [this] { Store(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    Load();
}

QLineEdit* frmSetting::AddBox(QFormLayout& fields, const char* name, const QString& label) {
    QLineEdit* box = MakeBox(QLatin1String(name), this, kBoxWidth);
    fields.addRow(label, box);
    return box;
}

QLineEdit* frmSetting::AddPath(QFormLayout& fields, const char* name, const char* view,
                               const QString& label) {
    const QString toolTip = QStringLiteral("仅供查看：数据文件总是从启动文件夹打开");
    QLineEdit* box = MakeBox(QLatin1String(name), this);
    box->setToolTip(toolTip);
    QPushButton* button = MakeButton(view, QStringLiteral("..."), this, toolTip);
    button->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(box, 1);
    row->addWidget(button);
    fields.addRow(label, row);
    return box;
}

void frmSetting::Load() {
    const CompanySettings settings = LoadCompanySettings(App());
    txtCompany_->setText(ToQt(settings.company));
    txtTelnum_->setText(ToQt(settings.telephone));
    txtAddress_->setText(ToQt(settings.address));
    (settings.textOutput ? OptText_ : OptExcel_)->setChecked(true);
    (settings.shortWindCheck ? optEasy_ : optStandard_)->setChecked(true);
    txtClPath_->setText(ToQt(settings.mainStore));
    txtCkPath_->setText(ToQt(settings.stockStore));
}

void frmSetting::Store() {
    CompanySettings settings;
    settings.company = FromQt(txtCompany_->text());
    settings.telephone = FromQt(txtTelnum_->text());
    settings.address = FromQt(txtAddress_->text());
    settings.textOutput = !OptExcel_->isChecked();
    settings.shortWindCheck = !optStandard_->isChecked();
    settings.mainStore = FromQt(txtClPath_->text());
    settings.stockStore = FromQt(txtCkPath_->text());
    SaveCompanySettings(App(), settings);
    accept();
}

}  // namespace kalvane
