#include "project/composite_check.h"

#include <algorithm>

namespace kalvane {
namespace {

std::string FaultOf(Connection& connection, std::span<const CompositeMember> members,
                    const CompositeMember& member) {
    if (member.name.find('\'') != std::string::npos) return "名称里有单引号（'），不能存储";
    if (std::count(members.begin(), members.end(), member) > 1) {
        return "与另一项同名同型，两项会共用一份标注";
    }
    const std::vector<LabelRow> labels = LoadMemberRows(connection, member);
    if (labels.empty()) return "没有存储的标注，保存后这一项会消失";
    const bool isUnset =
        std::all_of(labels.begin(), labels.end(), [](const LabelRow& label) { return label.value == "0"; });
    return isUnset ? "标注都还是 0" : "";
}

}  // namespace

std::map<std::size_t, std::string> FindMemberFaults(Connection& connection,
                                                    std::span<const CompositeMember> members) {
    std::map<std::size_t, std::string> faults;
    for (std::size_t i = 0; i < members.size(); ++i) {
        std::string fault = FaultOf(connection, members, members[i]);
        if (!fault.empty()) faults[i] = std::move(fault);
    }
    return faults;
}

}  // namespace kalvane
