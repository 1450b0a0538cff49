#pragma once

#include <array>
#include <memory>

#include "store/connection.h"
#include "ui/entry_screen.h"

class QLabel;
class QLineEdit;

namespace kalvane {

/// Gives the logged-in user a new password. It has the user store open while it lives.
class frmUserChangPwd : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmUserChangPwd(QWidget* parent);

    /// Ends at once, after a message, when the user store cannot be opened.
    int exec() override;

  private:
    void Change();
    void Tell(const QString& text);

    std::unique_ptr<Connection> users_;
    std::array<QLabel*, 3> lblPwd_;
    std::array<QLineEdit*, 3> txtPwd_;  ///< old, new, new once more
};

}  // namespace kalvane
