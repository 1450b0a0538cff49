#include "project/screens/frmAddGCMC.h"

#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "design/window_type_tree.h"
#include "drawing/screens/drawing_box.h"
#include "project/screens/label_editor.h"
#include "project/screens/window_boxes.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/node_tree.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(1080, 700);
}  // namespace

frmAddGCMC::frmAddGCMC(QWidget* parent)
    : EntryScreen(QStringLiteral("frmAddGCMC"), QStringLiteral("添加门窗"), parent),
      tvw_(new NodeTree(QStringLiteral("Tvw"), kWindowTypeKind, this)),
      picture_(new DrawingBox(QStringLiteral("PicMC"), this)),
      labels_(new LabelEditor(picture_, this)),
      boxes_(new WindowBoxes(this)),
      add_(MakeButton("cmdAdd", QStringLiteral("添    加 [&A]"), this)),
      exit_(MakeButton("Command2", QStringLiteral("退    出 [&E]"), this)) {
    tvw_->setExpandsOnDoubleClick(false);  // a click expands already
    add_->setDefault(true);
    LayOut();
    resize(kFirstSize);
    Connect();
}

void frmAddGCMC::LayOut() {
    auto* middle = new QWidget(this);
    auto* picture = new QVBoxLayout(middle);
    picture->setContentsMargins(4, 0, 4, 0);
    picture->setSpacing(10);
    picture->addWidget(picture_, 1);
    picture->addWidget(boxes_);
    auto* right = new QWidget(this);
    auto* commands = new QVBoxLayout(right);
    commands->setContentsMargins(0, 0, 0, 0);
    commands->addWidget(labels_, 1);
    commands->addSpacing(18);
    commands->addWidget(add_);
    commands->addWidget(exit_);

    auto* panes = new QSplitter(Qt::Horizontal, this);
    panes->setChildrenCollapsible(false);
    for (QWidget* pane : std::initializer_list<QWidget*>{tvw_, middle, right}) panes->addWidget(pane);
    panes->setStretchFactor(1, 1);
    panes->setSizes({230, 590, 260});
    auto* all = new QVBoxLayout(this);
    all->addWidget(panes, 1);
}

void frmAddGCMC::Connect() {
    OnSignal(tvw_, &NodeTree::currentItemChanged, this, [this] {
        if (tvw_->currentItem() != nullptr) ChooseNode(tvw_->currentItem());
    });
    OnSignal(tvw_, &NodeTree::itemClicked, this, [this] { OpenNode(tvw_->currentItem()); });
    connect(labels_, &LabelEditor::Changed, boxes_, &WindowBoxes::TakeLabel);
    connect(labels_, &LabelEditor::LastChanged, this, [this] { FocusAll(boxes_->Place()); });
    OnSignal(add_, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(exit_, &QPushButton::clicked, this, [this] { Leave(); });

    OnEnter(tvw_, [this] {
        if (tvw_->currentItem() != nullptr) OpenNode(tvw_->currentItem());
    });
    OnEnter(labels_->ValueBox(), [this] { labels_->Change(); });
    EnterWalks(boxes_->All());
    EnterMovesTo(boxes_->All().back(), add_);

    std::vector<QWidget*> order = labels_->TabOrder();
    order.insert(order.begin(), tvw_);
    order.insert(order.end(), boxes_->All().begin(), boxes_->All().end());
    order.insert(order.end(), {add_, exit_});
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmAddGCMC::StartAdding(const std::string& projectNumber) {
    window_.projectNumber = projectNumber;
    tvw_->Show(LoadWindowTypes(App().Main()));
    boxes_->Zero();
    tvw_->setFocus();
}

void frmAddGCMC::StartEditing(const WindowEntry& window) {
    editing_ = true;
    window_ = window;
    setWindowTitle(QStringLiteral("编辑门窗"));
    add_->setText(QStringLiteral("确定 &Y"));
    tvw_->Show(LoadWindowTypes(App().Main()));
    tvw_->setEnabled(false);
    tvw_->setToolTip(QStringLiteral("编辑门窗时窗型不能更改"));
    // A window whose type or drawing is gone can be edited all the same, without a picture.
    Guarded(this, [&] { ShowDrawing(window.typeNumber); });
    boxes_->Show(window);
    labels_->Show(LoadLabels(App().Main(), window.number));
    StartLabels();
}

void frmAddGCMC::ChooseNode(QTreeWidgetItem* node) {
    labels_->Show({});
    if (!tvw_->IsLeaf(node)) return;
    window_.typeNumber = NodeTree::Id(node);
    boxes_->Name()->setText(node->text(0));
    labels_->Show(ShowDrawing(window_.typeNumber));
}

void frmAddGCMC::OpenNode(QTreeWidgetItem* node) {
    ChooseNode(node);
    if (tvw_->IsLeaf(node)) {
        StartLabels();
    } else {
        node->setExpanded(true);
    }
}

std::vector<LabelRow> frmAddGCMC::ShowDrawing(const std::string& typeNumber) {
    picture_->Clear();
    const std::string drawing = DrawingOfWindowType(App().Main(), typeNumber, SharedFieldSlots());
    return LabelsOfDrawing(picture_->ShowFromLibrary(App().Main(), drawing, DrawingBox::Names::Hidden));
}

void frmAddGCMC::StartLabels() {
    if (!labels_->Start()) FocusAll(boxes_->Place());
}

void frmAddGCMC::Save() {
    if (!AllFilled(boxes_->All())) return;
    const WindowEntry window = boxes_->Entered(window_);
    if (editing_) {
        UpdateWindow(App().Main(), window, labels_->Labels());
        Q_EMIT WindowSaved(ToQt(window.number));
        accept();
    } else if (!window.typeNumber.empty()) {
        Q_EMIT WindowSaved(ToQt(AddWindow(App().Main(), window, labels_->Labels())));
        boxes_->Zero();
        StartLabels();
    }
}

}  // namespace kalvane
