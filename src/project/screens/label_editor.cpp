#include "project/screens/label_editor.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "drawing/screens/drawing_box.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kSelectedCharacters = 10;  // of a value, when its label is taken up
constexpr int kNameColumn = 0;
constexpr int kValueColumn = 1;
}  // namespace

LabelEditor::LabelEditor(DrawingBox* picture, QWidget* parent, QString caption)
    : QWidget(parent),
      picture_(picture),
      caption_(std::move(caption)),
      lvwBZ_(new ReportList(
          QStringLiteral("LvwBZ"),
          {QStringLiteral("标注"), QStringLiteral("数值"), QStringLiteral("X"), QStringLiteral("Y")}, this)),
      lblBZ_(new QLabel(caption_, this)),
      txtBZ_(MakeBox(QStringLiteral("TxtBZ"), this)),
      change_(MakeButton("CmdChange", QStringLiteral("更改标注 &B"), this)) {
    lvwBZ_->KeepOrder();
    lvwBZ_->setToolTip(QStringLiteral("图中的标注及其数值"));
    lblBZ_->setObjectName(QStringLiteral("LblBZ"));
    txtBZ_->setToolTip(QStringLiteral("Enter 更改并转到下一个标注；↑ ↓ 选择标注"));
    txtBZ_->installEventFilter(this);
    change_->setEnabled(false);

    auto* entry = new QHBoxLayout;
    entry->addWidget(lblBZ_);
    entry->addWidget(txtBZ_, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(lvwBZ_, 1);
    rows->addLayout(entry);
    rows->addWidget(change_);

    OnSignal(lvwBZ_, &ReportList::itemSelectionChanged, this, [this] { TakeUp(); });
    OnSignal(lvwBZ_, &ReportList::itemClicked, this, [this] { TakeUp(); });
    OnSignal(change_, &QPushButton::clicked, this, [this] { Change(); });
}

void LabelEditor::Show(const std::vector<LabelRow>& labels) {
    lvwBZ_->Clear();
    QList<QStringList> rows;
    for (const LabelRow& label : labels) {
        rows << QStringList{ToQt(label.name), ToQt(label.value), ToQt(label.x), ToQt(label.y)};
    }
    lvwBZ_->AddRows(rows);
    lblBZ_->setText(caption_);
    txtBZ_->clear();
    change_->setEnabled(false);
    Repaint();
}

std::vector<LabelRow> LabelEditor::Labels() const {
    std::vector<LabelRow> labels;
    for (int row = 0; row < lvwBZ_->RowCount(); ++row) {
        const QStringList texts = lvwBZ_->Row(row);
        labels.push_back({FromQt(texts[0]), FromQt(texts[1]), FromQt(texts[2]), FromQt(texts[3])});
    }
    return labels;
}

bool LabelEditor::Start() {
    if (lvwBZ_->RowCount() == 0) return false;
    lvwBZ_->SelectRow(0);
    TakeUp();  // it may have been selected before
    return true;
}

void LabelEditor::TakeUp() {
    const int row = lvwBZ_->SelectedRow();
    if (row < 0) return;
    lblBZ_->setText(lvwBZ_->Text(row, kNameColumn) + QStringLiteral("="));
    txtBZ_->setText(lvwBZ_->Text(row, kValueColumn));
    Repaint();
    change_->setEnabled(true);
    txtBZ_->setSelection(0, kSelectedCharacters);
    txtBZ_->setFocus();
}

void LabelEditor::Change() {
    const int row = lvwBZ_->SelectedRow();
    if (row < 0 || !change_->isEnabled()) return;
    const QString value = txtBZ_->text();
    lvwBZ_->SetText(row, kValueColumn, value);
    Repaint();
    change_->setEnabled(false);
    Q_EMIT Changed(lvwBZ_->Text(row, kNameColumn), value);
    if (row + 1 < lvwBZ_->RowCount()) {
        lvwBZ_->SelectRow(row + 1);
    } else {
        Q_EMIT LastChanged();
    }
}

void LabelEditor::Move(int step) {
    const int row = lvwBZ_->SelectedRow() + step;
    if (row >= 0 && row < lvwBZ_->RowCount()) lvwBZ_->SelectRow(row);
}

std::vector<QWidget*> LabelEditor::TabOrder() const {
    return {lvwBZ_, txtBZ_, change_};
}

bool LabelEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtBZ_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Guarded(this, [&] { Move(key == Qt::Key_Up ? -1 : 1); });
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void LabelEditor::Repaint() {
    picture_->ShowLabels(PaintedLabels(Labels()), lvwBZ_->SelectedRow());
}

}  // namespace kalvane
