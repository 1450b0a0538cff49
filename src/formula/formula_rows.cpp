#include "formula/formula_rows.h"

namespace kalvane {
namespace {

/// A formula table and what its columns of dimensions and units are called; a null pointer for a column
/// that it has not.
struct FormulaTable {
    const char* name;
    const char* code;
    const char* length;
    const char* width;
    const char* unit;
};

const FormulaTable& TableOf(MaterialClass materialClass) {
    static constexpr FormulaTable kProfile = {"窗型材", "规格", "计算公式", nullptr, nullptr};
    static constexpr FormulaTable kSteel = {"窗型钢", "规格", "计算公式", nullptr, nullptr};
    static constexpr FormulaTable kFitting = {"窗配件", "规格", nullptr, nullptr, "单位"};
    static constexpr FormulaTable kPanel = {"窗板材", nullptr, "长公式", "宽公式", nullptr};
    switch (materialClass) {
        case MaterialClass::Profile:
            return kProfile;
        case MaterialClass::Steel:
            return kSteel;
        case MaterialClass::Fitting:
            return kFitting;
        case MaterialClass::Panel:
            break;
    }
    return kPanel;
}

}  // namespace

const std::vector<FormulaRow>& FormulaRows::Of(MaterialClass materialClass, const std::string& typeId) {
    const auto key = std::pair(materialClass, typeId);
    const auto known = known_.find(key);
    if (known != known_.end()) return known->second;

    const FormulaTable& table = TableOf(materialClass);
    std::vector<FormulaRow> rows;
    for (Cursor row =
             connection_.OpenCursor(std::string("Select * From ") + table.name + " where 窗号=" + typeId);
         !row.Eof(); row.MoveNext()) {
        const auto field = [&row](const char* column) {
            return column == nullptr ? FieldValue() : row.Field(column);
        };
        rows.push_back({field("编号"), field("名称"), field(table.code), field("数量"), field(table.length),
                        field(table.width), field(table.unit)});
    }
    return known_.emplace(key, std::move(rows)).first->second;
}

MemberWalk::MemberWalk(Connection& connection, std::string windowId)
    : connection_(connection),
      windowId_(std::move(windowId)),
      members_(
          connection.OpenCursor("Select CBN,CMC from 标注2 where MCBN=" + windowId_ + " Group by CBN,CMC")) {}

bool MemberWalk::Next() {
    if (isFirst_) {
        isFirst_ = false;
    } else {
        members_.MoveNext();
    }
    if (members_.Eof()) return false;
    typeId_ = members_.Field("CBN").Text();
    LoadMemberLabels(connection_, windowId_, typeId_, members_.Field("CMC").TextOrEmpty(), labels_, count_);
    return true;
}

}  // namespace kalvane
