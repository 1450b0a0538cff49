#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "project/labels.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace kalvane {

class DrawingBox;
class ReportList;

/// The labels of a window and the box that takes their values: list `LvwBZ`, name `LblBZ`, value `TxtBZ`,
/// command `CmdChange`. Enter in the box changes the value and goes on to the next label; up and down walk
/// through the list. The values are painted over the drawing in `picture`, that of the selected label in red.
class LabelEditor : public QWidget {
    Q_OBJECT

  public:
    /// `picture` must outlive the editor. `caption` is what stands in LblBZ while no label is taken up.
    LabelEditor(DrawingBox* picture, QWidget* parent, QString caption = {});

    void Show(const std::vector<LabelRow>& labels);
    std::vector<LabelRow> Labels() const;

    /// Takes up the first label; false when there is none.
    bool Start();
    /// As `CmdChange`, when that is enabled.
    void Change();

    /// The parts the keyboard walks through, in order.
    std::vector<QWidget*> TabOrder() const;
    QLineEdit* ValueBox() const { return txtBZ_; }

  Q_SIGNALS:
    /// A label has a new value.
    void Changed(const QString& name, const QString& value);
    /// The last label has a new value.
    void LastChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Brings the selected label to the value box.
    void TakeUp();
    /// `step` rows down the list, if there is one.
    void Move(int step);
    void Repaint();

    DrawingBox* picture_;
    const QString caption_;
    ReportList* lvwBZ_;
    QLabel* lblBZ_;
    QLineEdit* txtBZ_;
    QPushButton* change_;
};

}  // namespace kalvane
