#include "design/screens/frmFindReplace.h"

#include <QHBoxLayout>
#include <QLineEdit>

#include "ui/text.h"

namespace kalvane {
namespace {
constexpr std::size_t kPreviewLines = 5;
}  // namespace

frmFindReplace::frmFindReplace(const FormulaLists& lists, FieldSlots& slots, QWidget* parent)
    : EntryForm(QStringLiteral("frmFindReplace"), QStringLiteral("查找/替换"),
                {{.name = QStringLiteral("Text1"),
                  .caption = QStringLiteral("查找内容:"),
                  .slot = 0,
                  .complaint = QStringLiteral("查找内容不能为空！")},
                 {.name = QStringLiteral("Text2"),
                  .caption = QStringLiteral("替换内容:"),
                  .slot = 1,
                  .complaint = QStringLiteral("替换内容不能为空！")}},
                slots, parent),
      lists_(lists) {
    const QStringList captions = {QStringLiteral("查找列一"), QStringLiteral("查找列二"),
                                  QStringLiteral("查找列三"), QStringLiteral("查找列四")};
    auto* row = new QWidget(this);
    auto* boxes = new QHBoxLayout(row);
    boxes->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < checks_.size(); ++i) {
        checks_[i] = new QCheckBox(captions[static_cast<qsizetype>(i)], row);
        checks_[i]->setObjectName(QStringLiteral("Check1(%1)").arg(i));
        boxes->addWidget(checks_[i]);
        connect(checks_[i], &QCheckBox::toggled, this, [this] { FollowNotes(); });
    }
    AddControl(row);
    AddNote([this] { return Preview(); });
}

FindAndReplace frmFindReplace::Request() const {
    FindAndReplace request{FromQt(Box(0)->text()), FromQt(Box(1)->text()), {}};
    for (std::size_t i = 0; i < checks_.size(); ++i) request.columns[i] = checks_[i]->isChecked();
    return request;
}

QString frmFindReplace::Preview() const {
    const FindAndReplace request = Request();
    if (request.find.empty()) return QStringLiteral("不分大小写；所选列的内容都变成大写。");
    return ToQt(ChangeSummary(ChangesBetween(lists_, TextReplaced(lists_, request)), kPreviewLines));
}

}  // namespace kalvane
