#pragma once

#include <functional>
#include <string>

#include "platform/recovery_shelf.h"
#include "ui/screen.h"

class QPushButton;
class QTreeWidgetItem;

namespace kalvane {

class TypeClipboard;
class TypePicture;
class TypeTree;

/// The window types: makers, their series, and the types of these.
class FrmDesign final : public Screen {
    Q_OBJECT

  public:
    explicit FrmDesign(QWidget* parent);

  private:
    /// What differs between makers, series and types.
    struct Level;

    void LayOut();
    void Connect();
    void Load();
    /// Enables what can be done with the selected node, and shows its drawing.
    void ShowSelected();
    /// The selected node if it is of that kind; else says `complaint`.
    QTreeWidgetItem* Selected(const Level& level, const QString& complaint);

    /// Asks for a name; `save` is handed what was confirmed.
    void InputName(const QString& title, const QString& name,
                   const std::function<void(const std::string& name)>& save);
    void AddNode(const std::string& name, const Level& level, const std::string& id, QTreeWidgetItem* parent);

    void AddMaker();
    void AddSeries();
    void AddType();
    void Rename(const Level& level);
    void EditType();
    void Delete(const Level& level);
    void DesignType();
    void Import();
    /// Takes up formulas that were not saved.
    void Recover();

    TypeTree* tvw_;
    TypePicture* picture_;
    QPushButton* addMaker_;
    QPushButton* editMaker_;
    QPushButton* deleteMaker_;
    QPushButton* addSeries_;
    QPushButton* editSeries_;
    QPushButton* deleteSeries_;
    QPushButton* addType_;
    QPushButton* editType_;
    QPushButton* deleteType_;
    QPushButton* design_;
    QPushButton* input_;
    QPushButton* output_;
    QPushButton* recover_;
    QPushButton* exit_;
    TypeClipboard* clipboard_;
    RecoveryShelf shelf_;  ///< of the designer
};

}  // namespace kalvane
