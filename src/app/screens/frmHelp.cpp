#include "app/screens/frmHelp.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace kalvane {
namespace {
constexpr QSize kFirstSize(760, 560);
}  // namespace

frmHelp::frmHelp(const QString& text, QWidget* parent)
    : Screen(QStringLiteral("frmHelp"), QStringLiteral("帮助"), parent) {
    auto* box = new QPlainTextEdit(text, this);
    box->setObjectName(QStringLiteral("Text1"));
    box->setReadOnly(true);
    auto* all = new QVBoxLayout(this);
    all->addWidget(box);
    resize(kFirstSize);
}

}  // namespace kalvane
