#include "design/screens/formula_editor.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "design/screens/formula_tabs.h"
#include "design/screens/frmFormulaCheck.h"
#include "design/screens/row_frame.h"
#include "design/screens/test_value_table.h"
#include "session/app_state.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {

FormulaEditor::FormulaEditor(FormulaDesigner& designer, TestValueTable& tests, QWidget* parent)
    : QWidget(parent),
      designer_(designer),
      tests_(tests),
      codes_(App().Main()),
      tabs_(new FormulaTabs(this)),
      line_(new QLabel(this)),
      frame_(new RowFrame(this)) {
    line_->setObjectName(QStringLiteral("LblValue"));
    line_->setTextFormat(Qt::PlainText);
    line_->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(tabs_, 1);
    rows->addWidget(line_);
    rows->addWidget(frame_);

    OnSignal(tabs_, &FormulaTabs::RowSelected, this, [this] { ShowRow(); });
    OnSignal(tabs_, &FormulaTabs::RowOpened, this, [this] { OpenRow(); });
    OnSignal(&tests_, &TestValueTable::Changed, this, [this] { ShowRow(); });
    OnSignal(frame_->Ok(), &QPushButton::clicked, this, [this] { ConfirmRow(); });
    OnSignal(frame_->Cancel(), &QPushButton::clicked, this, [this] { CloseRow(); });
    frame_->SetHint([this](const FormulaTexts& texts) { return HintFor(editClass_, texts); });
    frame_->SetSource([this]() -> const FormulaTexts& { return tabs_->LastClicked(editClass_); });
}

void FormulaEditor::ShowLists() {
    findings_ = FindingsOfLists(designer_.Lists(), codes_, tests_.Values().Names());
    tabs_->Show(designer_.Lists(), findings_);
    ShowRow();
    Q_EMIT StateChanged();
}

QString FormulaEditor::HintFor(MaterialClass materialClass, const FormulaTexts& texts) const {
    const TestValues values = tests_.Values();
    QString hint = ToQt(RowValues(materialClass, texts, values));
    for (const FormulaFinding& finding : FindingsOfRow(materialClass, 0, texts, codes_, values.Names())) {
        hint += QStringLiteral("；") + ToQt(finding.text);
    }
    return hint;
}

void FormulaEditor::ShowRow() {
    const MaterialClass front = tabs_->Front();
    const std::optional<std::size_t> row = tabs_->SelectedRow(front);
    const auto& rows = designer_.Lists()[front];
    line_->setText(row && *row < rows.size() ? HintFor(front, rows[*row]) : QString());
}

void FormulaEditor::Check() {
    const TestValues values = tests_.Values();
    std::vector<FormulaFinding> all = findings_;
    const std::vector<FormulaFinding> pieces = PiecesThatCannotBe(designer_.Lists(), values);
    all.insert(all.end(), pieces.begin(), pieces.end());
    QStringList missing;
    for (const std::string& label : values.Names()) {
        if (!values.Of(label)) missing << ToQt(label);
    }
    QString remark;
    if (!missing.isEmpty()) {
        remark = QStringLiteral("标注 %1 还没有试算值，用到它们的尺寸没有核对。")
                     .arg(missing.join(QStringLiteral("、")));
    } else if (all.empty()) {
        remark = QStringLiteral("没有发现问题。");
    }
    const std::optional<std::size_t> chosen = frmFormulaCheck(all, remark, window()).Choose();
    if (chosen) tabs_->SelectRow(all[*chosen].materialClass, all[*chosen].row);
}

bool FormulaEditor::IsEditing() const {
    return frame_->isVisibleTo(this);
}

void FormulaEditor::OpenRow() {
    const std::optional<std::size_t> row = tabs_->SelectedRow(tabs_->Front());
    if (!row || IsEditing()) return;
    editClass_ = tabs_->Front();
    editRow_ = *row;
    frame_->Open(editClass_, designer_.Lists()[editClass_][editRow_]);
    Q_EMIT StateChanged();
}

void FormulaEditor::ConfirmRow() {
    const FormulaTexts texts = frame_->Texts();
    CloseRow();
    designer_.Change([&](FormulaLists& lists) { lists[editClass_][editRow_] = texts; });
    ShowLists();
}

void FormulaEditor::CloseRow() {
    frame_->hide();
    tabs_->List(editClass_)->setFocus();
    Q_EMIT StateChanged();
}

}  // namespace kalvane
