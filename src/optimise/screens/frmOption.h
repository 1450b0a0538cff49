#pragma once

#include <array>

#include "optimise/option_form.h"
#include "ui/screen.h"

class QFormLayout;
class QLineEdit;

namespace kalvane {

/// The optimiser's options.
class frmOption : public Screen {
    Q_OBJECT

  public:
    explicit frmOption(QWidget* parent);

  private:
    void AddBox(QFormLayout& fields, OptionField field, const char* name, const QString& label);
    void Load();
    void Store();
    QLineEdit* Box(OptionField field) const { return boxes_[static_cast<std::size_t>(field)]; }

    std::array<QLineEdit*, kOptionFieldCount> boxes_ = {};
};

}  // namespace kalvane
