#include "optimise/demand.h"

#include <cmath>
#include <cstdint>
#include <optional>

#include "formula/composite.h"
#include "formula/formula_rows.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

/// One gathering.
class Gathering {
  public:
    explicit Gathering(Connection& connection) : connection_(connection), rows_(connection) {}

    void AddPlain(const DemandWindow& window) {
        const std::int16_t windows = RoundToInt16(ParseNumber(window.count));
        const LabelSet labels = LoadPlainLabels(connection_, Trim(window.id));
        ForEachBar(window.windowType, [&](const FormulaRow& row) {
            Require(row.number, "编号", window.windowType);
            AddPlainRow(row, labels, windows);
        });
    }

    void AddComposite(const DemandWindow& window) {
        const double windows = Val(window.count);
        for (MemberWalk member(connection_, window.id); member.Next();) {
            const double multiplier = windows * member.Count();
            ForEachBar(member.TypeId(),
                       [&](const FormulaRow& row) { AddMemberRow(row, member.Labels(), multiplier); });
        }
    }

  private:
    template <typename Add>
    void ForEachBar(const std::string& typeId, Add add) {
        for (const MaterialClass materialClass : kBarClasses) {
            for (const FormulaRow& row : rows_.Of(materialClass, typeId)) {
                Require(row.name, "名称", typeId);
                Require(row.code, "规格", typeId);
                Require(row.quantity, "数量", typeId);
                Require(row.length, "计算公式", typeId);
                add(row);
            }
        }
    }

    /// A plain window's quantities keep their fraction, which the store rounds.
    void AddPlainRow(const FormulaRow& row, const LabelSet& labels, std::int16_t windows) {
        const double quantity = static_cast<double>(EvalWithLabels(row.quantity.TextView(), labels));
        statement_ = "Insert into 优化数据 (编号,名称,规格,长度,数量) Values(" + row.number.Text() + ",'";
        AddRow(row, labels, ShortText(NarrowToFloat(quantity * windows)));
    }

    /// A composite's quantities are cut to whole pieces before they are multiplied.
    void AddMemberRow(const FormulaRow& row, const LabelSet& labels, double multiplier) {
        const double quantity =
            std::floor(static_cast<double>(EvalWithLabels(row.quantity.TextView(), labels)));
        statement_ = "Insert into 优化数据 (名称,规格,长度,数量) values('";
        AddRow(row, labels, ShortText(quantity * multiplier));
    }

    /// Ends the statement begun with the row's texts, length and quantity, and runs it.
    void AddRow(const FormulaRow& row, const LabelSet& labels, const std::string& quantity) {
        statement_ += row.name.TextView();
        statement_ += "','";
        statement_ += row.code.TextView();
        statement_ += "',";
        statement_ += ShortText(EvalWithLabels(row.length.TextView(), labels));
        statement_ += ',';
        statement_ += quantity;
        statement_ += ')';
        connection_.Execute(statement_);
    }

    /// An import may leave a column Null; the designer writes all of them.
    void Require(const FieldValue& field, const char* column, const std::string& typeId) {
        if (!field.IsNull()) return;
        const std::optional<Cursor> type =
            OpenQuery(connection_, "Select 名称 from 门窗 where 编号=" + typeId);
        const std::string name = type && !type->Eof() ? type->Field(0).TextOrEmpty() : typeId;
        throw NumericError("门窗类型“" + name + "”有一行公式没有“" + column +
                           "”，请在“窗型设计”中打开这个类型的“门窗公式设计”并保存一次。");
    }

    Connection& connection_;
    FormulaRows rows_;
    std::string statement_;
};

}  // namespace

std::vector<DemandWindow> ListDemandWindows(Connection& connection, const std::string& projectId) {
    std::vector<DemandWindow> windows;
    for (Cursor row = connection.OpenCursor("Select * from 工程门窗 where 工程编号=" + projectId); !row.Eof();
         row.MoveNext()) {
        windows.push_back({row.Field("门窗名称").TextOrEmpty(), row.Field("门窗类型").TextOrEmpty(),
                           row.Field("制作尺寸").TextOrEmpty(), row.Field("樘数").TextOrEmpty(),
                           row.Field("门窗编号").TextOrEmpty(), row.Field("编号").TextOrEmpty()});
    }
    return windows;
}

void GatherDemand(Connection& connection, const std::vector<DemandWindow>& windows) {
    InCommand(connection, [&] {
        connection.Execute("Delete * from 优化结果");
        connection.Execute("Delete * from 优化数据");
        Gathering gathering(connection);
        for (const DemandWindow& window : windows) {
            if (IsComposite(window.windowType)) {
                gathering.AddComposite(window);
            } else {
                gathering.AddPlain(window);
            }
        }
    });
}

}  // namespace kalvane
