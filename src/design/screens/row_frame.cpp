#include "design/screens/row_frame.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

const QColor kFocusColour(255, 255, 0);

std::array<QString, kFormulaColumns> LabelsOf(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return {QStringLiteral("型材名称："), QStringLiteral("型材规格："), QStringLiteral("型材数量："),
                    QStringLiteral("型材长度：")};
        case MaterialClass::Steel:
            return {QStringLiteral("型钢名称："), QStringLiteral("型钢规格："), QStringLiteral("型钢数量："),
                    QStringLiteral("型钢长度：")};
        case MaterialClass::Panel:
            return {QStringLiteral("板材名称："), QStringLiteral("板材数量："), QStringLiteral("板材长度："),
                    QStringLiteral("板材宽度：")};
        case MaterialClass::Fitting:
            break;
    }
    return {QStringLiteral("配件名称："), QStringLiteral("配件规格："), QStringLiteral("配件数量："),
            QStringLiteral("配件单位：")};
}

}  // namespace

RowFrame::RowFrame(QWidget* parent)
    : QFrame(parent),
      hintLine_(new QLabel(this)),
      ok_(MakeButton("CmdOk", QStringLiteral("&Y 确定"), this)),
      cancel_(MakeButton("CmdCancel", QStringLiteral("&C 取消"), this)) {
    setFrameShape(QFrame::StyledPanel);
    for (QPushButton* button : {ok_, cancel_}) button->setAutoDefault(false);
    auto* grid = new QGridLayout(this);
    constexpr int kBoxesInARow = 2;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        labels_[i] = new QLabel(this);
        boxes_[i] = MakeBox(QStringLiteral("Text1(%1)").arg(i), this);
        boxes_[i]->installEventFilter(this);
        OnSignal(boxes_[i], &QLineEdit::textChanged, this, [this] { ShowHint(); });
        const auto place = static_cast<int>(i);
        grid->addWidget(labels_[i], place / kBoxesInARow, place % kBoxesInARow * 2);
        grid->addWidget(boxes_[i], place / kBoxesInARow, place % kBoxesInARow * 2 + 1);
    }
    hintLine_->setTextFormat(Qt::PlainText);
    hintLine_->setWordWrap(true);
    auto* keys = new QLabel(QStringLiteral("Ctrl+Enter键为复制当前选取的字段"), this);
    grid->addWidget(hintLine_, 2, 0, 1, 4);
    grid->addWidget(keys, 3, 0, 1, 2);
    grid->addLayout(ButtonRow({ok_, cancel_}), 3, 2, 1, 2);
    hide();
}

void RowFrame::Open(MaterialClass materialClass, const FormulaTexts& texts) {
    const auto captions = LabelsOf(materialClass);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        labels_[i]->setText(captions[i]);
        boxes_[i]->setText(ToQt(texts[i]));
    }
    show();
    ShowHint();
    boxes_[0]->setFocus();
    boxes_[0]->selectAll();
}

FormulaTexts RowFrame::Texts() const {
    FormulaTexts texts;
    for (std::size_t i = 0; i < boxes_.size(); ++i) texts[i] = FromQt(boxes_[i]->text());
    return texts;
}

bool RowFrame::eventFilter(QObject* watched, QEvent* event) {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (watched != boxes_[i]) continue;
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
            QPalette colours;
            colours.setColor(QPalette::Base,
                             event->type() == QEvent::FocusIn ? kFocusColour : QColor(Qt::white));
            colours.setColor(QPalette::Text, Qt::black);
            boxes_[i]->setPalette(colours);
        } else if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
            if (isEnter && key->modifiers().testFlag(Qt::ControlModifier)) {
                CopyFromSource(i);
                return true;
            }
        }
    }
    return QFrame::eventFilter(watched, event);
}

void RowFrame::CopyFromSource(std::size_t column) {
    boxes_[column]->setText(ToQt(source_()[column]));
}

void RowFrame::ShowHint() {
    if (isVisible()) hintLine_->setText(hint_(Texts()));
}

}  // namespace kalvane
