#pragma once

#include <array>
#include <memory>

#include "store/connection.h"
#include "ui/screen.h"

class QLabel;
class QLineEdit;

namespace kalvane {

/// Changes the password of the user who is logged in. AppState keeps the password of the login, so a second
/// change in the same run asks for that one as the old password.
class frmUserChangPwd : public Screen {
    Q_OBJECT

  public:
    explicit frmUserChangPwd(QWidget* parent = nullptr);

    /// Ends at once, after a message, when the user store cannot be opened.
    int exec() override;

  private:
    enum Box { kOld, kNew, kRepeated, kBoxCount };

    void OpenUsers();
    void Change();
    void Refuse(const QString& text, Box box);

    std::unique_ptr<Connection> users_;
    std::array<QLabel*, kBoxCount> lblPwd_ = {};
    std::array<QLineEdit*, kBoxCount> txtPwd_ = {};
};

}  // namespace kalvane
