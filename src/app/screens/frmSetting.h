#pragma once

#include "ui/screen.h"

class QFormLayout;
class QLineEdit;
class QRadioButton;

namespace kalvane {

/// The company's data and the choices of output. Opening it reads both choices anew, the wind check's with
/// its own default: a model that was never saved becomes the standard one, also when the screen is cancelled.
class frmSetting : public Screen {
    Q_OBJECT

  public:
    explicit frmSetting(QWidget* parent);

  private:
    QLineEdit* AddBox(QFormLayout& fields, const char* name, const QString& label,
                      const char* view = nullptr);
    QRadioButton* AddChoice(const char* name, const QString& caption);
    void Load();
    void Save();

    QLineEdit* txtCompany_;
    QLineEdit* txtTelnum_;
    QLineEdit* txtAddress_;
    QRadioButton* OptExcel_;
    QRadioButton* OptText_;
    QRadioButton* optStandard_;
    QRadioButton* optEasy_;
    QLineEdit* txtClPath_;
    QLineEdit* txtCkPath_;
};

}  // namespace kalvane
