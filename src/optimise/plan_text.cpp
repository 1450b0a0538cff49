#include "optimise/plan_text.h"

#include "platform/files.h"

namespace kalvane {
namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kRulerWidth = 84;

/// Each field behind a tab.
template <typename Row>
std::string Fields(const Row& row) {
    std::string line;
    for (const std::string& field : row) line += "\t" + field;
    return line;
}

}  // namespace

std::string PlanText(const PlanOutput& plan) {
    std::string text;
    const auto line = [&text](const std::string& content) { text += content + "\r\n"; };
    line("材料优化切割表");
    line("");
    line("\t\t工程名称：" + plan.projectName);
    line("\t材料名称\t切割规格\t数量\t优化比率\t余料长度\t");
    for (const CutRow& row : plan.cuts) line(Fields(row));
    line("\t日期\t" + plan.today);
    line(std::string(kRulerWidth, '='));
    line("材料优化统计表");
    line("工程名称：" + plan.projectName);
    line("\t材料名称\t数量\t优化比率\t采购数量");
    for (const TotalRow& row : plan.totals) line(Fields(row));
    line("总经理签字");
    line("");
    line("主管签字");
    line("");
    line("\t日期" + plan.today);
    return text;
}

void SavePlanText(const PlanOutput& plan, const std::filesystem::path& path) {
    WriteFileAtomically(path, kByteOrderMark + PlanText(plan));
}

}  // namespace kalvane
