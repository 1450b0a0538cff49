#include "design/screens/frmCopyGS.h"

#include <QPushButton>
#include <QSplitter>

#include "design/screens/type_picture.h"
#include "design/window_type_tree.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/node_tree.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(760, 480);
}  // namespace

frmCopyGS::frmCopyGS(QWidget* parent)
    : Screen(QStringLiteral("frmCopyGS"), QStringLiteral("选取所要复制的门窗"), parent),
      tvw_(new NodeTree(QStringLiteral("Tvw"), kWindowTypeKind, this)),
      picture_(new TypePicture(QStringLiteral("PicMC"), this)) {
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定 &Y"), this);
    ok->setDefault(true);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消 &C"), this);
    cancel->setAutoDefault(false);
    auto* panes = new QSplitter(Qt::Horizontal, this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(tvw_);
    panes->addWidget(picture_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({280, 480});
    LayOutAboveButtons(this, panes, {ok, cancel});
    resize(kFirstSize);

    OnSignal(tvw_, &NodeTree::itemSelectionChanged, this, [this] { ShowSelected(); });
    OnSignal(tvw_, &NodeTree::itemDoubleClicked, this, [this] { Confirm(); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { tvw_->Show(LoadWindowTypes(App().Main())); });
}

void frmCopyGS::ShowSelected() {
    picture_->ShowNode(tvw_->Selected());
}

void frmCopyGS::Confirm() {
    const QTreeWidgetItem* node = tvw_->Selected();
    if (node == nullptr || !tvw_->IsLeaf(node)) return;
    SharedFieldSlots()[0] = NodeTree::Id(node);
    accept();
}

}  // namespace kalvane
