#pragma once

#include "ui/screen.h"

class QFormLayout;
class QLineEdit;
class QRadioButton;

namespace kalvane {

/// The company's data and the choices of output and wind check.
class frmSetting : public Screen {
    Q_OBJECT

  public:
    explicit frmSetting(QWidget* parent = nullptr);

  private:
    QLineEdit* AddBox(QFormLayout& fields, const char* name, const QString& label);
    QLineEdit* AddPath(QFormLayout& fields, const char* name, const char* view, const QString& label);
    void Load();
    void Store();

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
