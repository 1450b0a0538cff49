#pragma once

#include <QSplitter>
#include <functional>
#include <string>
#include <vector>

#include "project/composite_windows.h"

class QLineEdit;
class QPushButton;
class QTreeWidgetItem;
class QVBoxLayout;

namespace kalvane {

class DrawingBox;
class LabelEditor;
class MemberTree;
class NodeTree;

/// What is under edit of a composite window: the tree `TVW` of window types, its main drawing with the number
/// `TxtTH`, its members in the tree `Tvw1`, and the picture and the labels of the current one.
class MemberEditor : public QSplitter {
    Q_OBJECT

  public:
    explicit MemberEditor(QWidget* parent);

    void PutBelowPicture(QWidget* widget);
    void PutBelowLabels(QWidget* widget);

    /// Lists the window types, and the nodes of the composite under edit. Throws StoreError.
    void Show(const std::vector<CompositeMember>& members, const QString& drawingNumber);

    QString DrawingNumber() const;
    void ClearDrawingNumber();
    /// What has to be looked at before a save, a line each.
    QStringList Faults();
    /// True when something was changed since the last call of MarkUnchanged.
    bool IsChanged() const { return isChanged_; }
    void MarkUnchanged();

    QWidget* Types() const;
    QWidget* Members() const;
    LabelEditor* Labels() const { return labels_; }
    QPushButton* OpenButton() const { return open_; }

    /// As `CmdSelect`.
    void AddMember();

  Q_SIGNALS:
    /// A label of the main drawing has a new value.
    void MainLabelChanged(const QString& name, const QString& value);
    /// The last label of a member was changed, and all of them are stored.
    void LabelsDone();

  private:
    void LayOut();
    void Connect();

    /// Shows a window type, which becomes no member by that.
    void Preview();
    void ChooseMainDrawing();
    void RemoveMember();
    /// Makes a node the current one: shows its drawing and lists its labels.
    void ShowMember(QTreeWidgetItem* node);
    void ShowNothing();
    /// Stores the labels of the current node, and the count that is asked for; nothing when there is none.
    void StoreLabels();
    std::string AskCount(const CompositeMember& member);
    /// Runs a change of the rows and marks the nodes at fault after it, also when the store refused.
    void ChangeRows(const std::function<void()>& change);
    void MarkFaults();

    NodeTree* types_;
    MemberTree* members_;
    DrawingBox* picture_;
    LabelEditor* labels_;
    QLineEdit* drawing_;
    QPushButton* store_;
    QPushButton* open_;
    QPushButton* select_;
    QPushButton* remove_;
    QVBoxLayout* middle_;
    QVBoxLayout* right_;

    QTreeWidgetItem* current_ = nullptr;
    bool isChanged_ = false;
    bool isStored_ = true;  ///< the values in the list of labels
};

}  // namespace kalvane
