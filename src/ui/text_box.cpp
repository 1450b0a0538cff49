#include "ui/text_box.h"

namespace kalvane {

QLineEdit* MakeBox(const QString& name, QWidget* screen, int minimumWidth) {
    auto* box = new QLineEdit(screen);
    box->setObjectName(name);
    box->setMinimumWidth(minimumWidth);
    return box;
}

}  // namespace kalvane
