#include "project/screens/member_tree.h"

#include "ui/text.h"

namespace kalvane {
namespace {
constexpr const char* kMemberKinds = "0123456789";  // a tag that begins with "-" is the main drawing's
}  // namespace

MemberTree::MemberTree(const QString& name, QWidget* parent) : NodeTree(name, kMemberKinds, parent) {
    setRootIsDecorated(false);
}

QTreeWidgetItem* MemberTree::AddMember(const CompositeMember& member) {
    const QSignalBlocker quiet(this);
    return Add({member.name, member.tag});
}

QTreeWidgetItem* MemberTree::AddNumbered(const std::string& name, const std::string& tag) {
    return AddMember({name + NextMemberSuffix(Members()), tag});
}

QTreeWidgetItem* MemberTree::MainNode() const {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (IsMainDrawing(Member(topLevelItem(i)))) return topLevelItem(i);
    }
    return nullptr;
}

void MemberTree::Remove(QTreeWidgetItem* node) {
    const QSignalBlocker quiet(this);
    const bool wasSelected = node == Selected();
    delete node;
    if (!wasSelected) return;
    setCurrentItem(nullptr);  // not the neighbour, whose labels are not shown
    clearSelection();
}

void MemberTree::SelectQuietly(QTreeWidgetItem* node) {
    const QSignalBlocker quiet(this);
    setCurrentItem(node);
}

CompositeMember MemberTree::Member(const QTreeWidgetItem* node) {
    return {FromQt(node->text(0)), Tag(node)};
}

std::vector<CompositeMember> MemberTree::Members() const {
    std::vector<CompositeMember> members;
    for (int i = 0; i < topLevelItemCount(); ++i) members.push_back(Member(topLevelItem(i)));
    return members;
}

void MemberTree::MarkFaults(const std::map<std::size_t, std::string>& faults) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const auto fault = faults.find(static_cast<std::size_t>(i));
        const bool isMarked = fault != faults.end();
        topLevelItem(i)->setForeground(0, isMarked ? QBrush(Qt::red) : QBrush());
        topLevelItem(i)->setToolTip(0, isMarked ? ToQt(fault->second) : QString());
    }
}

}  // namespace kalvane
