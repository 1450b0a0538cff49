#pragma once

#include <array>
#include <string>

#include "project/contract.h"
#include "project/project_list.h"
#include "project/screens/quote_marks.h"
#include "ui/entry_screen.h"

class QPushButton;

namespace kalvane {

/// The contract of a project: parties at the top, terms below.
class frmGCHT : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmGCHT(QWidget* parent);

    /// Shows the saved contract of that project; empty when there is none or it cannot be read.
    void SetProject(const Project& project);

  protected:
    bool HasTypedWork() const override { return Texts() != shown_; }

  private:
    QWidget* MakeParties();
    QWidget* MakeTerms();

    ContractTexts Texts() const;
    void Show(const ContractTexts& texts);
    void Fill();
    void Save();
    /// Leads to the box of the column that the store refused.
    void FocusColumn(const std::string& column);
    /// The saved contract, and with the window list behind it in one document.
    void Print();
    void PrintWithWindows();

    std::array<QWidget*, kContractTextCount> boxes_ = {};
    QuoteMarks quotes_;
    Project project_;
    ContractTexts shown_;  ///< the texts as they came from the store
};

}  // namespace kalvane
