#include "project/screens/member_editor.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "design/window_type_tree.h"
#include "drawing/screens/drawing_box.h"
#include "drawing/screens/frmOpenPicture.h"
#include "numeric/number.h"
#include "project/composite_check.h"
#include "project/screens/label_editor.h"
#include "project/screens/member_tree.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/entry_form.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

const QString kNoNode = QStringLiteral("当前无选取结点！");

QVBoxLayout* AddColumn(QSplitter* panes) {
    auto* column = new QWidget(panes);
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    panes->addWidget(column);
    return rows;
}

std::string DrawingOf(const CompositeMember& member) {
    return IsMainDrawing(member) ? ShortText(-Val(member.tag))
                                 : DrawingOfWindowType(App().Main(), member.tag, SharedFieldSlots());
}

}  // namespace

MemberEditor::MemberEditor(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent),
      types_(new NodeTree(QStringLiteral("TVW"), kWindowTypeKind, this)),
      members_(new MemberTree(QStringLiteral("Tvw1"), this)),
      picture_(new DrawingBox(QStringLiteral("PicMC"), this)),
      labels_(new LabelEditor(picture_, this, QStringLiteral("标注："))),
      drawing_(MakeBox(QStringLiteral("TxtTH"), this)),
      store_(MakeButton("CmdSaveBZ", QStringLiteral("存储标注 &S"), this,
                        QStringLiteral("存储这一项的标注，并输入它在一樘组合窗里的樘数"))),
      open_(MakeButton("CmdOpenPic", QStringLiteral("打开主图..."), this)),
      select_(MakeButton("CmdSelect", QStringLiteral("选取"), this,
                         QStringLiteral("把选中的窗型加为组合窗的一项"))),
      remove_(MakeButton("CmdRemove", QStringLiteral("移除"), this,
                         QStringLiteral("移除这一项；同一窗型的其它各项也要移除后重新选取"))) {
    drawing_->setReadOnly(true);
    drawing_->setToolTip(QStringLiteral("主图的图号"));
    LayOut();
    Connect();
}

void MemberEditor::LayOut() {
    setChildrenCollapsible(false);
    QVBoxLayout* left = AddColumn(this);
    middle_ = AddColumn(this);
    right_ = AddColumn(this);
    auto* main = new QFormLayout;
    main->addRow(open_, drawing_);
    left->addWidget(types_, 3);
    left->addWidget(select_);
    left->addLayout(main);
    left->addWidget(members_, 2);
    left->addWidget(remove_);
    middle_->addWidget(picture_, 1);
    right_->addWidget(labels_, 1);
    right_->addWidget(store_);
    setStretchFactor(1, 1);
    setSizes({250, 650, 260});
}

void MemberEditor::Connect() {
    OnSignal(types_, &NodeTree::currentItemChanged, this, [this] { Preview(); });
    OnSignal(types_, &NodeTree::itemClicked, this, [this] { Preview(); });
    OnSignal(members_, &MemberTree::itemSelectionChanged, this, [this] {
        if (members_->Selected() != nullptr) ShowMember(members_->Selected());
    });
    OnSignal(members_, &MemberTree::itemClicked, this, [this] {
        ShowMember(members_->currentItem());
        labels_->Start();
    });
    OnSignal(open_, &QPushButton::clicked, this, [this] { ChooseMainDrawing(); });
    OnSignal(select_, &QPushButton::clicked, this, [this] { AddMember(); });
    OnSignal(remove_, &QPushButton::clicked, this, [this] { RemoveMember(); });
    OnSignal(store_, &QPushButton::clicked, this, [this] { StoreLabels(); });
    connect(labels_, &LabelEditor::Changed, this, [this](const QString& name, const QString& value) {
        isChanged_ = true;
        isStored_ = false;
        const bool isMain = current_ != nullptr && IsMainDrawing(MemberTree::Member(current_));
        if (isMain) Q_EMIT MainLabelChanged(name, value);
    });
    OnSignal(labels_, &LabelEditor::LastChanged, this, [this] {
        StoreLabels();
        Q_EMIT LabelsDone();
    });
}

void MemberEditor::PutBelowPicture(QWidget* widget) {
    middle_->addWidget(widget);
}

void MemberEditor::PutBelowLabels(QWidget* widget) {
    right_->addWidget(widget);
}

void MemberEditor::Show(const std::vector<CompositeMember>& members, const QString& drawingNumber) {
    types_->Show(LoadWindowTypes(App().Main()));
    drawing_->setText(drawingNumber);
    for (const CompositeMember& member : members) members_->AddMember(member);
    MarkFaults();
}

QString MemberEditor::DrawingNumber() const {
    return drawing_->text();
}

void MemberEditor::ClearDrawingNumber() {
    drawing_->clear();
    MarkFaults();
}

void MemberEditor::MarkUnchanged() {
    isChanged_ = false;
}

QWidget* MemberEditor::Types() const {
    return types_;
}

QWidget* MemberEditor::Members() const {
    return members_;
}

void MemberEditor::Preview() {
    const QTreeWidgetItem* node = types_->currentItem();
    if (node == nullptr || !types_->IsLeaf(node)) return;
    ShowNothing();
    picture_->ShowFromLibrary(App().Main(), DrawingOf({{}, NodeTree::Id(node)}), DrawingBox::Names::Hidden);
}

void MemberEditor::ChooseMainDrawing() {
    frmOpenPicture library(window());
    library.ForbidDelete();
    if (library.exec() != QDialog::Accepted) return;
    const std::string number = SharedFieldSlots()[0];
    const std::string name = SharedFieldSlots()[1];
    isChanged_ = true;
    if (QTreeWidgetItem* before = members_->MainNode()) members_->Remove(before);
    current_ = members_->AddNumbered(name, "-" + number);
    members_->SelectQuietly(current_);
    drawing_->setText(ToQt(number));
    const std::vector<LabelRow> labels =
        LabelsOfDrawing(picture_->ShowFromLibrary(App().Main(), number, DrawingBox::Names::Hidden));
    RemoveMainRows(App().Main());
    labels_->Show(labels);
    StoreLabels();
    labels_->Start();
}

void MemberEditor::AddMember() {
    const QTreeWidgetItem* node = types_->SelectedOrTell(kNoNode);
    if (node == nullptr) return;
    if (!types_->IsLeaf(node)) return Tell(window(), QStringLiteral("当前所选的结点非门窗结点！"));
    isChanged_ = true;
    const CompositeMember member =
        MemberTree::Member(members_->AddNumbered(FromQt(node->text(0)), NodeTree::Id(node)));
    ChangeRows([&] {
        MessageNotice notice(this);
        MCPicture picture(notice);
        picture.OpenFileEX(App().Main(), DrawingOf(member));
        AddMemberRows(App().Main(), member, LabelsOfDrawing(picture.Strings()));
    });
}

void MemberEditor::RemoveMember() {
    QTreeWidgetItem* node = members_->SelectedOrTell(kNoNode);
    if (node == nullptr) return;
    isChanged_ = true;
    ChangeRows([&] {
        RemoveMemberRows(App().Main(), NodeTree::Tag(node));
        if (node == current_) {
            current_ = nullptr;
            ShowNothing();
        }
        members_->Remove(node);
    });
}

void MemberEditor::ShowMember(QTreeWidgetItem* node) {
    current_ = node;
    const CompositeMember member = MemberTree::Member(node);
    ShowNothing();
    // A member whose type or drawing is gone shows its labels all the same.
    Guarded(this,
            [&] { picture_->ShowFromLibrary(App().Main(), DrawingOf(member), DrawingBox::Names::Hidden); });
    labels_->Show(LoadMemberRows(App().Main(), member));
}

void MemberEditor::ShowNothing() {
    picture_->Clear();
    labels_->Show({});
    isStored_ = true;
}

void MemberEditor::StoreLabels() {
    if (current_ == nullptr) return;
    const CompositeMember member = MemberTree::Member(current_);
    const std::string count = AskCount(member);
    ChangeRows([&] { StoreMemberRows(App().Main(), member, labels_->Labels(), count); });
    isChanged_ = true;
    isStored_ = true;
}

std::string MemberEditor::AskCount(const CompositeMember& member) {
    const std::string count = LoadMemberCount(App().Main(), member);
    FieldSlots slots;
    EntryForm input(
        QStringLiteral("frmInputBox"), QStringLiteral("门窗樘数"),
        {{.name = QStringLiteral("Text1"), .caption = QStringLiteral("输入该项门窗的樘数:"), .slot = 0}},
        slots, window());
    input.Fill({ToQt(count)});
    return input.Run() ? slots[0] : count;
}

void MemberEditor::ChangeRows(const std::function<void()>& change) {
    try {
        change();
    } catch (...) {
        MarkFaults();
        throw;
    }
    MarkFaults();
}

void MemberEditor::MarkFaults() {
    members_->MarkFaults(FindMemberFaults(App().Main(), members_->Members()));
}

QStringList MemberEditor::Faults() {
    MarkFaults();
    QStringList lines;
    const std::vector<CompositeMember> members = members_->Members();
    for (const auto& [place, fault] : FindMemberFaults(App().Main(), members)) {
        lines << ToQt(members[place].name + "：" + fault);
    }
    if (!isStored_) lines << QStringLiteral("当前一项的标注更改后还没有存储（存储标注）");
    return lines;
}

}  // namespace kalvane
