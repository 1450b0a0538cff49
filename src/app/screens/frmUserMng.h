#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "app/rights.h"
#include "app/user_admin.h"
#include "ui/screen.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace kalvane {

class ReportList;

/// The users and what they may reach. It has the user store open while it lives.
class frmUserMng : public Screen {
    Q_OBJECT

  public:
    explicit frmUserMng(QWidget* parent);

    /// Ends at once, after a message, when the user store cannot be opened.
    int exec() override;

  private:
    void Load();
    void ShowSelected();
    void Add();
    void Edit();
    void Delete();
    void Save();
    void SaveNew(const std::string& name, const std::string& password);
    void SaveRights(const std::string& name);
    void Cancel();

    void Tell(const QString& text, const QString& title);
    void EnableNameAndPassword(bool enabled);
    std::string CheckedRights() const;
    void CheckRights(const std::string& rights);

    std::unique_ptr<Connection> store_;
    std::vector<User> users_;  ///< row by row as in the list
    ReportList* lvw_;
    QLineEdit* txtUsrNm_;
    QLineEdit* txtUsrPwd_;
    std::array<QCheckBox*, kRightCount> chkAuth_;
    bool isAdding_ = false;  ///< what the last of the commands add and edit was
};

}  // namespace kalvane
