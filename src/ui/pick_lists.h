#pragma once

#include <QStringList>
#include <QWidget>

namespace kalvane {

class ReportList;

/// One command of two lists: its control's name, its caption, and what it says when there is nothing to take
/// (empty: it says nothing).
struct PickCommand {
    const char* name;
    QString caption;
    QString complaint{};
};

/// How two lists look and behave.
struct PickSetup {
    QString offeredName;  ///< of the list to choose from
    QString chosenName;
    QString offeredHeading;
    QString chosenHeading;
    QStringList columns;
    PickCommand choose;
    PickCommand remove;
    PickCommand chooseAll;
    PickCommand removeAll;
    bool copies = false;  ///< choosing leaves the row where it was, and removing drops it
};

/// Two lists with the same columns, what can be chosen and what is chosen, and the commands that move or copy
/// rows between them. Several rows can be selected; a double click or Enter takes a row as well. The order of
/// what is chosen is the order in which it was chosen.
class PickLists : public QWidget {
    Q_OBJECT

  public:
    PickLists(const PickSetup& setup, QWidget* screen);

    ReportList& Offered() { return *offered_; }
    ReportList& Chosen() { return *chosen_; }

  private:
    void Take(bool chooses, const std::vector<int>& rows, const QString& complaint);

    const bool copies_;
    ReportList* offered_;
    ReportList* chosen_;
};

}  // namespace kalvane
