#include "optimise/screens/frmOption.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/number_filter.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 140;
}  // namespace

frmOption::frmOption(QWidget* parent)
    : Screen(QStringLiteral("frmOption"), QStringLiteral("基础设置"), parent) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* fields = new QFormLayout;
    fields->setHorizontalSpacing(16);
    AddBox(*fields, OptionField::CLC, "TxtCLC", QStringLiteral("材料长度（mm）："));
    AddBox(*fields, OptionField::LTC, "TxtLTC", QStringLiteral("料头长度（mm）："));
    AddBox(*fields, OptionField::CKK, "TxtCKK", QStringLiteral("切口宽度（mm）："));
    AddBox(*fields, OptionField::COUNT, "TxtCount", QStringLiteral("允许优化材料数量："));
    QLineEdit* mostPieces = MakeBox(QStringLiteral("TxtMaxCount"), this, kBoxWidth);
    mostPieces->setText(QString::number(kMostPieces));
    mostPieces->setEnabled(false);
    fields->addRow(QStringLiteral("最大可优化数量："), mostPieces);
    AddBox(*fields, OptionField::YHBL, "TxtYHBL", QStringLiteral("控制优化比率:"));
    AddBox(*fields, OptionField::NODES, "txtCtlNodes", QStringLiteral("控制优化结点数："));

    auto* note = new QLabel(QStringLiteral("注：切一根材料其损耗量为:2*切口宽+料头长"), this);
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this);
    ok->setDefault(true);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(20, 20, 20, 16);
    rows->setSpacing(14);
    rows->addLayout(fields);
    rows->addWidget(note);
    rows->addLayout(ButtonRow({ok, cancel}));
    rows->setSizeConstraint(QLayout::SetFixedSize);

    OnSignal(ok, &QPushButton::clicked, this, [this] { Store(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    Load();
}

void frmOption::AddBox(QFormLayout& fields, OptionField field, const char* name, const QString& label) {
    QLineEdit* box = MakeBox(QLatin1String(name), this, kBoxWidth);
    NumberFilter::Set(box, NumberKeys::Any);
    fields.addRow(label, box);
    boxes_[static_cast<std::size_t>(field)] = box;
}

void frmOption::Load() {
    MessageNotice notice(this);
    App().optimise = ReadOptimiseSettings(*App().settings, notice);
    const OptionTexts texts = OptionTextsOf(App().optimise);
    for (std::size_t i = 0; i < texts.size(); ++i) boxes_[i]->setText(ToQt(texts[i]));
}

void frmOption::Store() {
    OptionTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = FromQt(boxes_[i]->text());
    const auto accepted = AcceptOptions(texts);
    if (const auto* failure = std::get_if<OptionFailure>(&accepted)) {
        UseDialogs().Message(this, ToQt(failure->message), QStringLiteral("提示"), NoticeIcon::Information);
        Box(failure->field)->setFocus();
        Box(failure->field)->selectAll();
        return;
    }
    App().optimise = std::get<OptimiseSettings>(accepted);
    WriteOptimiseSettings(*App().settings, App().optimise);
    accept();
}

}  // namespace kalvane
