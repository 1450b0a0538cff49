#pragma once

#include "project/project_windows.h"
#include "ui/entry_screen.h"

class QPushButton;
class QTreeWidgetItem;

namespace kalvane {

class DrawingBox;
class LabelEditor;
class NodeTree;
class WindowBoxes;

/// A window of a project: its type from the tree, the values of the labels of its drawing, its sizes.
class frmAddGCMC : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmAddGCMC(QWidget* parent);

    // Call one of the two before the screen is shown. They throw StoreError.

    /// For new windows of that project; the screen stays open after each.
    void StartAdding(const std::string& projectNumber);
    /// For a plain window that is in the store; its type stays.
    void StartEditing(const WindowEntry& window);

  Q_SIGNALS:
    void WindowSaved(const QString& number);

  private:
    void LayOut();
    void Connect();

    /// Takes the node as the window's type if it is one, shows its drawing and lists its labels.
    void ChooseNode(QTreeWidgetItem* node);
    /// As a click on the node: chooses it and leads on to its labels, or expands it.
    void OpenNode(QTreeWidgetItem* node);
    /// Shows the drawing of a window type and returns its labels.
    std::vector<LabelRow> ShowDrawing(const std::string& typeNumber);
    /// To the first label, or to the boxes when there is none.
    void StartLabels();
    void Save();

    NodeTree* tvw_;
    DrawingBox* picture_;
    LabelEditor* labels_;
    WindowBoxes* boxes_;
    QPushButton* add_;
    QPushButton* exit_;

    WindowEntry window_;  ///< project and type of a new window; the window that is edited
    bool editing_ = false;
};

}  // namespace kalvane
