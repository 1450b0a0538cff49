#pragma once

#include <array>
#include <memory>
#include <vector>

#include "app/rights.h"
#include "app/user_accounts.h"
#include "ui/screen.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace kalvane {

class ReportList;

/// The users and their rights. It has the user store open while it lives.
class frmUserMng : public Screen {
    Q_OBJECT

  public:
    explicit frmUserMng(QWidget* parent = nullptr);

    /// Ends at once, after a message, when the user store cannot be opened.
    int exec() override;

  private:
    enum Command { kAdd, kEdit, kDelete, kSave, kCancel, kCommandCount };
    enum class Mode { Browse, Add, Edit };

    QWidget* MakeFields();
    void Load();
    void StartAdding();
    void StartEditing();
    void Delete();
    void Save();
    void SaveNew();
    void SaveRights();
    void Enter(Mode mode);
    void ShowSelected();
    void ShowRights(const std::string& rights);
    std::string RightsOfBoxes() const;

    std::unique_ptr<Connection> users_;
    std::vector<UserAccount> accounts_;  ///< by row of the list
    Mode mode_ = Mode::Browse;
    ReportList* lvw_;
    QLineEdit* txtUsrNm_;
    QLineEdit* txtUsrPwd_;
    std::array<QCheckBox*, kRightCount> chkAuth_ = {};
    std::array<QPushButton*, kCommandCount> cmdOpr_ = {};
};

}  // namespace kalvane
