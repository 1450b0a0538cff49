#include "optimise/screens/piece_entry.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/command_buttons.h"
#include "ui/number_filter.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr int kNumberWidth = 110;

bool IsTable(const QString& text) {
    return text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\t')) ||
           text.contains(QLatin1Char(','));
}

}  // namespace

PieceEntry::PieceEntry(QWidget* parent)
    : QWidget(parent),
      txtName_(MakeBox(QStringLiteral("TxtName"), this)),
      txtCD_(MakeBox(QStringLiteral("TxtCD"), this)),
      txtSL_(MakeBox(QStringLiteral("TxtSL"), this)),
      cmdAdd_(MakeButton("CmdAdd", QStringLiteral("添加 &A"), this)) {
    for (QLineEdit* box : {txtCD_, txtSL_}) {
        NumberFilter::Set(box, NumberKeys::Decimal);
        box->setFixedWidth(kNumberWidth);
        box->installEventFilter(this);
    }
    auto* name = new QHBoxLayout;
    name->addWidget(new QLabel(QStringLiteral("材料名称：")));
    name->addWidget(txtName_, 1);
    auto* numbers = new QHBoxLayout;
    numbers->addWidget(new QLabel(QStringLiteral("长度：")));
    numbers->addWidget(txtCD_);
    numbers->addWidget(new QLabel(QStringLiteral("数量：")));
    numbers->addWidget(txtSL_);
    numbers->addWidget(cmdAdd_);
    numbers->addStretch();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(name);
    rows->addLayout(numbers);
}

QString PieceEntry::Material() const {
    return txtName_->text();
}

ManualRow PieceEntry::Row() const {
    return {FromQt(txtCD_->text()), FromQt(txtSL_->text())};
}

void PieceEntry::StartRow() {
    txtCD_->clear();
    txtSL_->clear();
    txtCD_->setFocus();
}

void PieceEntry::FocusOn(ManualRowFailure::Field field) {
    (field == ManualRowFailure::Field::Length ? txtCD_ : txtSL_)->setFocus();
}

bool PieceEntry::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const bool pastes = static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste);
    if (!pastes || !IsTable(QGuiApplication::clipboard()->text().trimmed())) {
        return QWidget::eventFilter(watched, event);
    }
    Q_EMIT TablePasted();
    return true;
}

}  // namespace kalvane
