#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "formula/bill_row.h"
#include "formula/labels.h"
#include "store/connection.h"

namespace kalvane {

// What every bill is worked out from: the formula rows of a window type, and the members of a composite
// window. Whoever evaluates them keeps to itself how it counts and what a Null or a failure does to it:
//
//     FormulaRows rows(connection);
//     const LabelSet labels = LoadPlainLabels(connection, window.id);
//     for (const MaterialClass materialClass : kAllClasses) {
//         for (const FormulaRow& row : rows.Of(materialClass, window.typeId)) {
//             EvalWithLabels(row.length.Text(), labels) ...
//
// and for a composite the same inside of
//
//     for (MemberWalk member(connection, window.id); member.Next();) {
//         ... rows.Of(materialClass, member.TypeId()), member.Labels(), member.Count() ...

/// The classes in the order in which a window's material is listed.
inline constexpr std::array kAllClasses = {MaterialClass::Profile, MaterialClass::Steel,
                                           MaterialClass::Fitting, MaterialClass::Panel};

/// The classes that are cut from bars, in the same order.
inline constexpr std::array kBarClasses = {MaterialClass::Profile, MaterialClass::Steel};

/// A row of 窗型材, 窗型钢, 窗配件 or 窗板材 as it is stored. Any column may be Null; a column that the class
/// has not is.
struct FormulaRow {
    FieldValue number;    ///< 编号
    FieldValue name;      ///< 名称
    FieldValue code;      ///< 规格; not of a panel
    FieldValue quantity;  ///< 数量: a formula, or for a panel a whole number
    FieldValue length;    ///< 计算公式, or for a panel 长公式; not of a fitting
    FieldValue width;     ///< 宽公式 of a panel
    FieldValue unit;      ///< 单位 of a fitting
};

/// The formula rows of window types. Those of a type are read once and kept, since a project has many
/// windows of few types: make one for each command, so that a changed formula counts in the next.
class FormulaRows {
  public:
    /// `connection` must outlive this.
    explicit FormulaRows(Connection& connection) : connection_(connection) {}

    /// The rows of one class of a window type (门窗.编号), in the order of the store; none when there is no
    /// such type. They stay valid as long as this. Throws StoreError for a number that the store refuses.
    const std::vector<FormulaRow>& Of(MaterialClass materialClass, const std::string& typeId);

  private:
    Connection& connection_;
    std::map<std::pair<MaterialClass, std::string>, std::vector<FormulaRow>> known_;
};

/// Steps through the members of a composite window (工程门窗.编号), in the order of window type and name.
class MemberWalk {
  public:
    /// `connection` must outlive this. Throws StoreError.
    MemberWalk(Connection& connection, std::string windowId);

    /// Steps to the next member, the first one to begin with, and reads its labels; false behind the last.
    /// A member of which no row is found by its name, as one with a Null CMC, keeps the labels and the count
    /// of the member before.
    ///
    /// Throws StoreError, and NumericError for a Null or a count beyond 16 bits. The step has been made then,
    /// so that a caller that ignores failures may call again.
    bool Next();

    const std::string& TypeId() const { return typeId_; }  ///< the member's 门窗.编号
    const LabelSet& Labels() const { return labels_; }     ///< sorted
    std::int16_t Count() const { return count_; }          ///< pieces of it in one composite window

  private:
    Connection& connection_;
    std::string windowId_;
    Cursor members_;
    bool isFirst_ = true;
    std::string typeId_;
    LabelSet labels_;
    std::int16_t count_ = 0;
};

}  // namespace kalvane
