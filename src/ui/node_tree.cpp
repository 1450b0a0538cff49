#include "ui/node_tree.h"

#include <QStyle>
#include <QTreeWidgetItemIterator>

#include "store/helpers.h"
#include "ui/dialogs.h"
#include "ui/screen_memory.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr int kTagRole = Qt::UserRole;
const QChar kSeparator = QLatin1Char(' ');
}  // namespace

NodeTree::NodeTree(const QString& name, const std::string& leafKinds, QWidget* parent)
    : QTreeWidget(parent),
      leafKinds_(leafKinds),
      leaf_(QStringLiteral(":/ui/design.svg")),
      folder_(style()->standardIcon(QStyle::SP_DirIcon)) {
    setObjectName(name);
    setHeaderHidden(true);
    setUniformRowHeights(true);
}

void NodeTree::Show(const std::vector<TreeNode>& nodes) {
    clear();
    QList<QTreeWidgetItem*> items;
    for (const TreeNode& node : nodes) items << MakeItem(node);
    addTopLevelItems(items);
    if (topLevelItemCount() == 1) expandItem(topLevelItem(0));
    Restore();
}

QTreeWidgetItem* NodeTree::MakeItem(const TreeNode& node) const {
    auto* item = new QTreeWidgetItem(QStringList(ToQt(node.name)));
    item->setData(0, kTagRole, ToQt(node.tag));
    const bool isLeaf = !node.tag.empty() && leafKinds_.find(KeyKind(node.tag)) != std::string::npos;
    item->setIcon(0, isLeaf ? leaf_ : folder_);
    QList<QTreeWidgetItem*> children;
    children.reserve(static_cast<qsizetype>(node.children.size()));
    for (const TreeNode& child : node.children) children << MakeItem(child);
    item->addChildren(children);
    return item;
}

QTreeWidgetItem* NodeTree::Add(const TreeNode& node, QTreeWidgetItem* parent) {
    QTreeWidgetItem* item = MakeItem(node);
    (parent != nullptr ? parent : invisibleRootItem())->addChild(item);
    return item;
}

void NodeTree::Move(QTreeWidgetItem* node, QTreeWidgetItem* parent) {
    QTreeWidgetItem* before = node->parent() != nullptr ? node->parent() : invisibleRootItem();
    before->removeChild(node);
    parent->addChild(node);
}

std::string NodeTree::Tag(const QTreeWidgetItem* node) {
    return FromQt(node->data(0, kTagRole).toString());
}

std::string NodeTree::Kind(const QTreeWidgetItem* node) {
    return KeyKind(Tag(node));
}

std::string NodeTree::Id(const QTreeWidgetItem* node) {
    return KeyId(Tag(node));
}

bool NodeTree::IsLeaf(const QTreeWidgetItem* node) const {
    const std::string kind = Kind(node);
    return !kind.empty() && leafKinds_.find(kind) != std::string::npos;
}

QTreeWidgetItem* NodeTree::Find(const std::string& tag) const {
    for (QTreeWidgetItemIterator node(const_cast<NodeTree*>(this)); *node != nullptr; ++node) {
        if (Tag(*node) == tag) return *node;
    }
    return nullptr;
}

QTreeWidgetItem* NodeTree::Selected() const {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? nullptr : selected.front();
}

QTreeWidgetItem* NodeTree::SelectedOrTell(const QString& complaint) {
    QTreeWidgetItem* node = Selected();
    if (node == nullptr) Tell(window(), complaint);
    return node;
}

QString NodeTree::MemoryKey() const {
    QString screen;
    for (const QWidget* widget = parentWidget(); widget != nullptr; widget = widget->parentWidget()) {
        if (!widget->objectName().isEmpty()) screen = widget->objectName();
        if (widget->isWindow()) break;
    }
    return screen + QLatin1Char('.') + objectName();
}

void NodeTree::hideEvent(QHideEvent* event) {
    QTreeWidget::hideEvent(event);
    QStringList open;
    for (QTreeWidgetItemIterator node(this); *node != nullptr; ++node) {
        if ((*node)->isExpanded()) open << ToQt(Tag(*node));
    }
    Remember(MemoryKey() + QStringLiteral(".open"), open.join(kSeparator));
    const QString place = currentItem() == nullptr ? QString() : ToQt(Tag(currentItem()));
    Remember(MemoryKey() + QStringLiteral(".place"), place);
}

void NodeTree::Restore() {
    const QStringList open =
        Remembered(MemoryKey() + QStringLiteral(".open"), {}).split(kSeparator, Qt::SkipEmptyParts);
    const QSet<QString> tags(open.begin(), open.end());
    const std::string place = FromQt(Remembered(MemoryKey() + QStringLiteral(".place"), {}));
    if (!tags.isEmpty()) {
        for (QTreeWidgetItemIterator node(this); *node != nullptr; ++node) {
            if (tags.contains((*node)->data(0, kTagRole).toString())) (*node)->setExpanded(true);
        }
    }
    QTreeWidgetItem* last = place.empty() ? nullptr : Find(place);
    if (last == nullptr) return;
    const QSignalBlocker quiet(this);
    setCurrentItem(last, 0, QItemSelectionModel::NoUpdate);
    scrollToItem(last);
}

}  // namespace kalvane
