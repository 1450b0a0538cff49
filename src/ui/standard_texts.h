#pragma once

#include <QTranslator>

namespace kalvane {

/// Chinese for the toolkit's own texts that the operator meets: standard buttons, edit menus, file dialogs,
/// child windows, the print preview. Kept here so that no translation package need be installed.
class StandardTexts final : public QTranslator {
    Q_OBJECT

  public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override;
};

}  // namespace kalvane
