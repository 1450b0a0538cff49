#pragma once

#include <QObject>
#include <functional>
#include <string>

class QAction;
class QMenu;
class QTreeWidgetItem;
class QWidget;

namespace kalvane {

class TypeTree;

/// Copying and moving types in their tree: the menu `mnuGR` of the right button with cut, copy and paste, and
/// what is dropped. Each operation asks first; one that the store refuses ends without a word.
class TypeClipboard : public QObject {
    Q_OBJECT

  public:
    /// `screen` stands behind the questions; both must outlive this.
    TypeClipboard(TypeTree* tree, QWidget* screen);

    /// Forgets a type that is no longer in the tree.
    void ForgetDeleted();

  private:
    QAction* AddAction(const char* name, const QString& caption, const QKeySequence& keys = {},
                       const std::function<void()>& work = nullptr);
    void Take(bool cuts);
    void Paste();
    /// Each is false when it was not done.
    bool Copy(const QTreeWidgetItem* type, QTreeWidgetItem* series);
    bool Move(QTreeWidgetItem* type, QTreeWidgetItem* series);

    TypeTree* tree_;
    QWidget* screen_;
    QMenu* menu_;
    QAction* paste_;
    std::string type_;  ///< tag of the type that was cut or copied
    bool cut_ = false;
    bool copied_ = false;
};

}  // namespace kalvane
