#include "design/screens/type_clipboard.h"

#include <QAction>
#include <QMenu>

#include "design/screens/type_tree.h"
#include "design/window_type_edits.h"
#include "design/window_type_tree.h"
#include "numeric/error.h"
#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/text.h"

namespace kalvane {

TypeClipboard::TypeClipboard(TypeTree* tree, QWidget* screen)
    : QObject(screen), tree_(tree), screen_(screen), menu_(new QMenu(QStringLiteral("功能"), screen)) {
    menu_->setObjectName(QStringLiteral("mnuGR"));
    AddAction("mnuCut", QStringLiteral("剪切"), QKeySequence::Cut, [this] { Take(true); });
    AddAction("mnuCopy", QStringLiteral("复制"), QKeySequence::Copy, [this] { Take(false); });
    paste_ = AddAction("mnuParse", QStringLiteral("粘贴"), QKeySequence::Paste, [this] { Paste(); });
    paste_->setEnabled(false);
    // The order of types is that of their names, so that these two have nothing to do.
    AddAction("mnuMoveNext", QStringLiteral("下移"));
    AddAction("mnuMovePrev", QStringLiteral("上移"));
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tree_, &TypeTree::customContextMenuRequested, this, [this](const QPoint& place) {
        if (tree_->itemAt(place) != nullptr) menu_->popup(tree_->viewport()->mapToGlobal(place));
    });
    connect(tree_, &TypeTree::Dropped, this, [this](QTreeWidgetItem* type, QTreeWidgetItem* series) {
        Guarded(screen_, [&] { Copy(type, series); });
    });
}

QAction* TypeClipboard::AddAction(const char* name, const QString& caption, const QKeySequence& keys,
                                  const std::function<void()>& work) {
    QAction* action = menu_->addAction(caption);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    tree_->addAction(action);
    if (work) OnSignal(action, &QAction::triggered, screen_, work);
    return action;
}

void TypeClipboard::ForgetDeleted() {
    if (tree_->Find(type_) != nullptr) return;
    type_.clear();
    cut_ = copied_ = false;
    paste_->setEnabled(false);
}

void TypeClipboard::Take(bool cuts) {
    const QTreeWidgetItem* node = tree_->Selected();
    if (node == nullptr || !tree_->IsLeaf(node)) return;
    type_ = NodeTree::Tag(node);
    (cuts ? cut_ : copied_) = true;
    paste_->setEnabled(true);
}

void TypeClipboard::Paste() {
    QTreeWidgetItem* series = tree_->Selected();
    QTreeWidgetItem* type = tree_->Find(type_);
    const bool takes = series != nullptr && type != nullptr && series != type->parent() &&
                       NodeTree::Kind(series) == kWindowSeriesKind;
    if (!takes) return;
    // After both a cut and a copy it is a move.
    if (!(cut_ ? Move(type, series) : Copy(type, series))) return;
    (cut_ ? cut_ : copied_) = false;
    paste_->setEnabled(false);
}

bool TypeClipboard::Copy(const QTreeWidgetItem* type, QTreeWidgetItem* series) {
    if (!UseDialogs().AskOkCancel(screen_, QStringLiteral("确认要复制？"), PromptTitle(),
                                  Dialogs::Answer::Yes)) {
        return false;
    }
    try {
        const std::string id = CopyWindowType(App().Main(), NodeTree::Id(type), NodeTree::Id(series));
        tree_->Add({FromQt(type->text(0)), MakeKey(kWindowTypeKind, id)}, series);
        series->setExpanded(true);
        return true;
    } catch (const StoreError&) {
        return false;
    }
}

bool TypeClipboard::Move(QTreeWidgetItem* type, QTreeWidgetItem* series) {
    if (!UseDialogs().AskOkCancel(screen_, QStringLiteral("确认要移动？"), PromptTitle(),
                                  Dialogs::Answer::Yes)) {
        return false;
    }
    try {
        MoveWindowType(App().Main(), NodeTree::Id(type), NodeTree::Id(series));
        tree_->Move(type, series);
        return true;
    } catch (const StoreError&) {
        return false;
    }
}

}  // namespace kalvane
