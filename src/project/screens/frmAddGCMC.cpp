#include "project/screens/frmAddGCMC.h"

#include <QGridLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "drawing/mcpicture.h"
#include "drawing/screens/window_picture.h"
#include "numeric/number.h"
#include "session/app_state.h"
#include "session/shared_slots.h"
#include "store/helpers.h"
#include "ui/command_buttons.h"
#include "ui/digits_only.h"
#include "ui/guard.h"
#include "ui/picture_box.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(1080, 700);
constexpr int kTagRole = Qt::UserRole;
constexpr int kSelectedCharacters = 10;  // of a value, when its label is taken up

// The boxes by their place.
constexpr std::size_t kName = 0;
constexpr std::size_t kPosition = 1;
constexpr std::size_t kWidth = 2;
constexpr std::size_t kHeight = 3;
constexpr std::size_t kCount = 4;
constexpr std::size_t kNote = 5;

std::string TagOf(const QTreeWidgetItem* node) {
    return FromQt(node->data(0, kTagRole).toString());
}

}  // namespace

frmAddGCMC::frmAddGCMC(QWidget* parent)
    : EntryScreen(QStringLiteral("frmAddGCMC"), QStringLiteral("添加门窗"), parent),
      tvw_(new QTreeWidget(this)),
      picture_(new PictureBox(QStringLiteral("PicMC"), this)),
      lvwBZ_(new ReportList(
          QStringLiteral("LvwBZ"),
          {QStringLiteral("标注"), QStringLiteral("数值"), QStringLiteral("X"), QStringLiteral("Y")}, this)),
      lblBZ_(new QLabel(this)),
      txtBZ_(MakeBox(QStringLiteral("TxtBZ"), this)),
      change_(MakeButton("CmdChange", QStringLiteral("更改标注 &B"), this)),
      add_(MakeButton("cmdAdd", QStringLiteral("添    加 [&A]"), this)),
      exit_(MakeButton("Command2", QStringLiteral("退    出 [&E]"), this)),
      notice_(this) {
    tvw_->setObjectName(QStringLiteral("Tvw"));
    tvw_->setHeaderHidden(true);
    tvw_->setExpandsOnDoubleClick(false);  // a click expands already

    auto* panes = new QSplitter(Qt::Horizontal, this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(tvw_);
    panes->addWidget(MakePicturePane());
    panes->addWidget(MakeLabelPane());
    panes->setStretchFactor(1, 1);
    panes->setSizes({230, 590, 260});
    auto* all = new QVBoxLayout(this);
    all->addWidget(panes, 1);
    resize(kFirstSize);
    Connect();
}

QWidget* frmAddGCMC::MakePicturePane() {
    auto* pane = new QWidget(this);
    auto* rows = new QVBoxLayout(pane);
    rows->setContentsMargins(4, 0, 4, 0);
    rows->setSpacing(10);
    rows->addWidget(picture_, 1);
    rows->addLayout(MakeBoxes());
    return pane;
}

QLayout* frmAddGCMC::MakeBoxes() {
    const QString captions[] = {QStringLiteral("门窗名称："),   QStringLiteral("门窗部位："),
                                QStringLiteral("制作尺寸宽："), QStringLiteral("制作尺寸高："),
                                QStringLiteral("樘    数："),   QStringLiteral("说    明：")};
    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        QLineEdit* box = MakeBox(QStringLiteral("Text1(%1)").arg(i), this);
        const int row = static_cast<int>(i) / 2;
        const int column = static_cast<int>(i) % 2 * 2;
        grid->addWidget(new QLabel(captions[i], this), row, column);
        grid->addWidget(box, row, column + 1);
        boxes_[i] = box;
    }
    for (std::size_t i : {kWidth, kHeight, kCount}) boxes_[i]->setValidator(new DigitsOnly(boxes_[i]));
    return grid;
}

QWidget* frmAddGCMC::MakeLabelPane() {
    auto* pane = new QWidget(this);
    lvwBZ_->setToolTip(QStringLiteral("图中的标注及其数值"));
    lblBZ_->setObjectName(QStringLiteral("LblBZ"));
    txtBZ_->setToolTip(QStringLiteral("Enter 更改并转到下一个标注；↑ ↓ 选择标注"));
    txtBZ_->installEventFilter(this);
    change_->setEnabled(false);
    add_->setDefault(true);

    auto* entry = new QHBoxLayout;
    entry->addWidget(lblBZ_);
    entry->addWidget(txtBZ_, 1);
    auto* rows = new QVBoxLayout(pane);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(lvwBZ_, 1);
    rows->addLayout(entry);
    rows->addWidget(change_);
    rows->addSpacing(18);
    rows->addWidget(add_);
    rows->addWidget(exit_);
    return pane;
}

void frmAddGCMC::Connect() {
    OnSignal(tvw_, &QTreeWidget::currentItemChanged, this, [this] {
        if (tvw_->currentItem() != nullptr) ChooseNode(tvw_->currentItem());
    });
    OnSignal(tvw_, &QTreeWidget::itemClicked, this, [this] { OpenNode(tvw_->currentItem()); });
    OnSignal(lvwBZ_, &ReportList::itemSelectionChanged, this, [this] { TakeUpLabel(); });
    OnSignal(lvwBZ_, &ReportList::itemClicked, this, [this] { TakeUpLabel(); });
    OnSignal(change_, &QPushButton::clicked, this, [this] { ChangeLabel(); });
    OnSignal(add_, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(exit_, &QPushButton::clicked, this, [this] { reject(); });

    OnEnter(tvw_, [this] {
        if (tvw_->currentItem() != nullptr) OpenNode(tvw_->currentItem());
    });
    OnEnter(txtBZ_, [this] {
        if (change_->isEnabled()) ChangeLabel();
    });
    for (std::size_t i = 0; i + 1 < boxes_.size(); ++i) EnterMovesTo(boxes_[i], boxes_[i + 1]);
    EnterMovesTo(boxes_.back(), add_);

    QWidget* previous = tvw_;
    const auto then = [&previous](QWidget* next) {
        setTabOrder(previous, next);
        previous = next;
    };
    for (QWidget* next : std::initializer_list<QWidget*>{lvwBZ_, txtBZ_, change_}) then(next);
    for (QLineEdit* box : boxes_) then(box);
    then(add_);
    then(exit_);
}

void frmAddGCMC::AddNodes(const std::vector<TypeNode>& nodes, QTreeWidgetItem* parent) {
    for (const TypeNode& node : nodes) {
        auto* item = new QTreeWidgetItem(parent, {ToQt(node.name)});
        item->setData(0, kTagRole, ToQt(node.tag));
        item->setIcon(0, IsWindowType(node.tag) ? QIcon(QStringLiteral(":/ui/design.svg"))
                                                : style()->standardIcon(QStyle::SP_DirIcon));
        AddNodes(node.children, item);
    }
}

void frmAddGCMC::StartAdding(const std::string& projectNumber) {
    window_.projectNumber = projectNumber;
    AddNodes(LoadWindowTypes(App().Main()), tvw_->invisibleRootItem());
    // A workshop with one maker sees its series at once.
    if (tvw_->topLevelItemCount() == 1) tvw_->expandItem(tvw_->topLevelItem(0));
    ZeroBoxes();
    tvw_->setFocus();
}

void frmAddGCMC::StartEditing(const WindowEntry& window) {
    editing_ = true;
    window_ = window;
    setWindowTitle(QStringLiteral("编辑门窗"));
    add_->setText(QStringLiteral("确定 &Y"));
    AddNodes(LoadWindowTypes(App().Main()), tvw_->invisibleRootItem());
    tvw_->setEnabled(false);
    tvw_->setToolTip(QStringLiteral("编辑门窗时窗型不能更改"));
    // A window whose type or drawing is gone can be edited all the same, without a picture.
    Guarded(this, [&] { ShowDrawing(window.typeNumber); });
    const std::string* texts[] = {&window.name,   &window.position, &window.width,
                                  &window.height, &window.count,    &window.note};
    for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->setText(ToQt(*texts[i]));
    ListLabels(LoadLabels(App().Main(), window.number));
    StartLabels();
}

void frmAddGCMC::ChooseNode(QTreeWidgetItem* node) {
    const std::string tag = TagOf(node);
    ListLabels({});
    if (!IsWindowType(tag)) return;
    window_.typeNumber = KeyId(tag);
    boxes_[kName]->setText(node->text(0));
    ListLabels(ShowDrawing(window_.typeNumber));
}

void frmAddGCMC::OpenNode(QTreeWidgetItem* node) {
    ChooseNode(node);
    if (IsWindowType(TagOf(node))) {
        StartLabels();
    } else {
        node->setExpanded(true);
    }
}

std::vector<LabelRow> frmAddGCMC::ShowDrawing(const std::string& typeNumber) {
    picture_->SetPersistent({});  // a drawing that cannot be opened leaves no other one behind
    const auto drawing = std::make_shared<MCPicture>(notice_);
    drawing->OpenFileEX(App().Main(), DrawingOfWindowType(App().Main(), typeNumber, SharedFieldSlots()));
    picture_->SetPersistent(
        [drawing](PainterTarget& target, Box inner) { drawing->OutMCNoStr(target, inner); });
    return LabelsOfDrawing(drawing->Strings());
}

void frmAddGCMC::ListLabels(const std::vector<LabelRow>& labels) {
    lvwBZ_->Clear();
    for (const LabelRow& label : labels) {
        lvwBZ_->AddRow({ToQt(label.name), ToQt(label.value), ToQt(label.x), ToQt(label.y)});
    }
    lblBZ_->clear();
    txtBZ_->clear();
    change_->setEnabled(false);
    RepaintLabels();
}

std::vector<LabelRow> frmAddGCMC::Labels() const {
    std::vector<LabelRow> labels;
    for (int row = 0; row < lvwBZ_->RowCount(); ++row) {
        labels.push_back({FromQt(lvwBZ_->Text(row, 0)), FromQt(lvwBZ_->Text(row, 1)),
                          FromQt(lvwBZ_->Text(row, 2)), FromQt(lvwBZ_->Text(row, 3))});
    }
    return labels;
}

void frmAddGCMC::StartLabels() {
    if (lvwBZ_->RowCount() == 0) {
        FocusAll(boxes_[kPosition]);
        return;
    }
    lvwBZ_->SelectRow(0);
    TakeUpLabel();  // it may have been selected before
}

void frmAddGCMC::TakeUpLabel() {
    const int row = lvwBZ_->SelectedRow();
    if (row < 0) return;
    lblBZ_->setText(lvwBZ_->Text(row, 0) + QStringLiteral("="));
    txtBZ_->setText(lvwBZ_->Text(row, 1));
    RepaintLabels();
    change_->setEnabled(true);
    txtBZ_->setSelection(0, kSelectedCharacters);
    txtBZ_->setFocus();
}

void frmAddGCMC::ChangeLabel() {
    const int row = lvwBZ_->SelectedRow();
    if (row < 0) return;
    const QString value = txtBZ_->text();
    lvwBZ_->SetText(row, 1, value);
    RepaintLabels();
    change_->setEnabled(false);
    // The labels B and H are the window's overall size.
    const QString name = lvwBZ_->Text(row, 0).trimmed().toUpper();
    if (name == QStringLiteral("B")) boxes_[kWidth]->setText(value);
    if (name == QStringLiteral("H")) boxes_[kHeight]->setText(value);
    if (row + 1 < lvwBZ_->RowCount()) {
        lvwBZ_->SelectRow(row + 1);
    } else {
        FocusAll(boxes_[kPosition]);
    }
}

void frmAddGCMC::MoveLabel(int step) {
    const int row = lvwBZ_->SelectedRow() + step;
    if (row >= 0 && row < lvwBZ_->RowCount()) lvwBZ_->SelectRow(row);
}

bool frmAddGCMC::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtBZ_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Guarded(this, [&] { MoveLabel(key == Qt::Key_Up ? -1 : 1); });
            return true;
        }
    }
    return EntryScreen::eventFilter(watched, event);
}

void frmAddGCMC::RepaintLabels() {
    std::vector<WindowLabel> labels;
    for (const LabelRow& label : Labels()) labels.push_back({Val(label.x), Val(label.y), label.value});
    picture_->SetTransient([labels, selected = lvwBZ_->SelectedRow()](PainterTarget& target, Box inner) {
        PaintLabelValues(target, labels, inner, selected);
    });
}

void frmAddGCMC::Save() {
    if (!AllFilled(boxes_)) return;
    const auto text = [this](std::size_t box) { return FromQt(boxes_[box]->text()); };
    const WindowEntry window{text(kName),           text(kPosition),    text(kWidth),
                             text(kHeight),         text(kCount),       text(kNote),
                             window_.projectNumber, window_.typeNumber, window_.number};
    if (editing_) {
        SaveChanged(window);
    } else if (!window.typeNumber.empty()) {
        SaveNew(window);
    }
}

void frmAddGCMC::SaveNew(const WindowEntry& window) {
    const std::string number = AddWindow(App().Main(), window, Labels());
    Q_EMIT WindowSaved(ToQt(number));
    ZeroBoxes();
    StartLabels();
}

void frmAddGCMC::SaveChanged(const WindowEntry& window) {
    UpdateWindow(App().Main(), window, Labels());
    Q_EMIT WindowSaved(ToQt(window.number));
    accept();
}

void frmAddGCMC::ZeroBoxes() {
    for (std::size_t i = kPosition; i < boxes_.size(); ++i) boxes_[i]->setText(QStringLiteral("0"));
}

}  // namespace kalvane
