#include "project/screens/window_boxes.h"

#include <QGridLayout>
#include <QLabel>

#include "project/labels.h"
#include "ui/number_filter.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

/// The texts of a window in the order of the boxes.
template <typename Entry>
auto Texts(Entry& window) {
    return std::array{&window.name,   &window.position, &window.width,
                      &window.height, &window.count,    &window.note};
}

}  // namespace

WindowBoxes::WindowBoxes(QWidget* parent) : QWidget(parent) {
    const QString captions[] = {QStringLiteral("门窗名称："),   QStringLiteral("门窗部位："),
                                QStringLiteral("制作尺寸宽："), QStringLiteral("制作尺寸高："),
                                QStringLiteral("樘    数："),   QStringLiteral("说    明：")};
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i] = MakeBox(QStringLiteral("Text1(%1)").arg(i), this);
        const int row = static_cast<int>(i) / 2;
        const int column = static_cast<int>(i) % 2 * 2;
        grid->addWidget(new QLabel(captions[i], this), row, column);
        grid->addWidget(boxes_[i], row, column + 1);
    }
    for (const std::size_t number : {2U, 3U, 4U}) NumberFilter::Set(boxes_[number], NumberKeys::Digits);
}

void WindowBoxes::Show(const WindowEntry& window) {
    const auto texts = Texts(window);
    for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->setText(ToQt(*texts[i]));
}

WindowEntry WindowBoxes::Entered(WindowEntry window) const {
    const auto texts = Texts(window);
    for (std::size_t i = 0; i < boxes_.size(); ++i) *texts[i] = FromQt(boxes_[i]->text());
    return window;
}

void WindowBoxes::Zero() {
    for (std::size_t i = 1; i < boxes_.size(); ++i) boxes_[i]->setText(QStringLiteral("0"));
}

void WindowBoxes::TakeLabel(const QString& name, const QString& value) {
    switch (SizeSetBy(FromQt(name))) {
        case MakingSize::Width:
            return Width()->setText(value);
        case MakingSize::Height:
            return Height()->setText(value);
        case MakingSize::None:
            return;
    }
}

}  // namespace kalvane
