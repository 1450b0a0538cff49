#pragma once

#include <QWidget>

namespace kalvane {

class ReportList;

/// Two lists with the same columns, what can be chosen (`LvwR`) and what is chosen (`LvwD`), and the buttons
/// that move rows between them. A double click or Enter moves a row as well.
class PickLists : public QWidget {
    Q_OBJECT

  public:
    struct Captions {
        QString move;
        QString remove;
        QString moveAll;
        QString removeAll;
    };

    PickLists(const QStringList& columns, const Captions& captions, QWidget* screen);

    ReportList& Offered() { return *offered_; }
    ReportList& Chosen() { return *chosen_; }

  private:
    void MoveSelected(ReportList& from, ReportList& to, const QString& complaint);
    static void MoveRow(ReportList& from, ReportList& to, int row);
    static void MoveAll(ReportList& from, ReportList& to);

    ReportList* offered_;
    ReportList* chosen_;
};

}  // namespace kalvane
