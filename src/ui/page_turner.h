#pragma once

#include <QObject>

class QLineEdit;
class QPushButton;
class QWidget;

namespace kalvane {

/// The two commands that turn the pages of a preview, and the box that says which page is shown. The page
/// keys press the commands too.
class PageTurner : public QObject {
    Q_OBJECT

  public:
    struct Look {
        const char* previous;  ///< captions of CmdPrev and CmdNext
        const char* next;
        const char* box;             ///< name of the box
        bool saysPageOfOne = false;  ///< "共1页第1页", else "共1页"
    };

    PageTurner(const Look& look, QWidget* screen);

    QPushButton* Previous() { return previous_; }
    QPushButton* Next() { return next_; }
    QLineEdit* Box() { return box_; }

    /// Has `count` pages from now on, of which `page` is shown; it does not tell.
    void Start(int count, int page);
    int Page() const { return page_; }
    int Count() const { return count_; }

  Q_SIGNALS:
    /// Another page is to be shown.
    void Turned();

  private:
    void TurnTo(int page);
    void Say();

    bool saysPageOfOne_;
    QPushButton* previous_;
    QPushButton* next_;
    QLineEdit* box_;
    int count_ = 1;
    int page_ = 1;
};

}  // namespace kalvane
