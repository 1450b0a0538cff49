#pragma once

#include <memory>

#include "store/connection.h"
#include "ui/screen.h"

class QComboBox;
class QLineEdit;

namespace kalvane {

/// The login, shown once at the start. It leaves AppState's login fields set, or loginOK false. It has the
/// user store open while it lives.
class frmLogin : public Screen {
    Q_OBJECT

  public:
    explicit frmLogin(QWidget* parent = nullptr);

    /// Ends at once, after a message, when the user store cannot be opened.
    int exec() override;

  private:
    void Load();
    void LogIn();
    void RefuseTry();

    std::unique_ptr<Connection> users_;
    QComboBox* cboUsrNm_;
    QLineEdit* txtPassword_;
    int wrongTries_ = 0;
};

}  // namespace kalvane
