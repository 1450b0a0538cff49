#pragma once

#include <array>
#include <memory>
#include <vector>

#include "design/window_type_tree.h"
#include "project/project_windows.h"
#include "ui/entry_screen.h"
#include "ui/message_notice.h"

class QLabel;
class QLayout;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace kalvane {

class PictureBox;
class ReportList;

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

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakeLabelPane();
    QWidget* MakePicturePane();
    QLayout* MakeBoxes();
    void Connect();
    void AddNodes(const std::vector<TypeNode>& nodes, QTreeWidgetItem* parent);

    /// Takes the node as the window's type if it is one, shows its drawing and lists its labels.
    void ChooseNode(QTreeWidgetItem* node);
    /// As a click on the node: chooses it and leads on to its labels, or expands it.
    void OpenNode(QTreeWidgetItem* node);
    /// Paints the drawing of a window type without its texts, and returns these as labels.
    std::vector<LabelRow> ShowDrawing(const std::string& typeNumber);

    void ListLabels(const std::vector<LabelRow>& labels);
    std::vector<LabelRow> Labels() const;
    /// To the first label, or to the boxes when there is none.
    void StartLabels();
    /// Brings the selected label to the entry line.
    void TakeUpLabel();
    void ChangeLabel();
    /// `step` rows down the list, if there is one.
    void MoveLabel(int step);
    void RepaintLabels();

    void Save();
    void SaveNew(const WindowEntry& window);
    void SaveChanged(const WindowEntry& window);
    void ZeroBoxes();

    QTreeWidget* tvw_;
    PictureBox* picture_;
    ReportList* lvwBZ_;
    QLabel* lblBZ_;
    QLineEdit* txtBZ_;
    QPushButton* change_;
    std::array<QLineEdit*, 6> boxes_ = {};
    QPushButton* add_;
    QPushButton* exit_;

    MessageNotice notice_;
    WindowEntry window_;  ///< project and type of a new window; the window that is edited
    bool editing_ = false;
};

}  // namespace kalvane
