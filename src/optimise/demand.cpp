#include "optimise/demand.h"

#include <cmath>
#include <cstdint>
#include <map>

#include "formula/labels.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

/// Positions of the columns of a formula table.
struct FormulaColumns {
    explicit FormulaColumns(const Cursor& row)
        : name(row.FieldIndex("名称")),
          material(row.FieldIndex("规格")),
          quantity(row.FieldIndex("数量")),
          length(row.FieldIndex("计算公式")) {}
    int name, material, quantity, length;
};

/// The text of a text column, without a copy; Null throws.
const std::string& TextOf(const FieldValue& field) {
    if (field.IsNull()) throw NumericError::NullUse();
    return field.TextView();
}

/// One gathering. The formula rows of a window type are read once, since a project has many windows of few
/// types.
class Gathering {
  public:
    explicit Gathering(Connection& connection) : connection_(connection) {}

    void AddPlain(const DemandWindow& window) {
        const std::int16_t windows = RoundToInt16(ParseNumber(window.count));
        const LabelSet labels = LoadPlainLabels(connection_, Trim(window.id));
        AddPlainRows(FormulaRows("Select * from 窗型材 where 窗号=" + window.windowType), labels, windows);
        AddPlainRows(FormulaRows("Select * from 窗型钢 where 窗号=" + window.windowType), labels, windows);
    }

    void AddComposite(const DemandWindow& window) {
        const double windows = Val(window.count);
        Cursor member =
            connection_.OpenCursor("Select CBN,CMC from 标注2 where MCBN=" + window.id + " Group by CBN,CMC");
        LabelSet labels;
        std::int16_t members = 0;
        for (; !member.Eof(); member.MoveNext()) {
            const std::string type = member.Field(0).Text();
            LoadMemberLabels(connection_, window.id, type, member.Field(1).Text(), labels, members);
            const double multiplier = windows * members;
            AddMemberRows(FormulaRows("Select * From 窗型材 where 窗号=" + type), labels, multiplier);
            AddMemberRows(FormulaRows("Select * From 窗型钢 where 窗号=" + type), labels, multiplier);
        }
    }

  private:
    Cursor& FormulaRows(const std::string& sql) {
        auto known = formulaRows_.find(sql);
        if (known == formulaRows_.end()) {
            known = formulaRows_.emplace(sql, connection_.OpenCursor(sql)).first;
        }
        known->second.MoveFirst();
        return known->second;
    }

    /// A plain window's quantities keep their fraction, which the store rounds.
    void AddPlainRows(Cursor& row, const LabelSet& labels, std::int16_t windows) {
        const FormulaColumns columns(row);
        for (; !row.Eof(); row.MoveNext()) {
            const double quantity =
                static_cast<double>(EvalWithLabels(TextOf(row.Field(columns.quantity)), labels));
            statement_ =
                "Insert into 优化数据 (编号,名称,规格,长度,数量) Values(" + row.Field(1).Text() + ",'";
            AddRow(row, columns, labels, ShortText(NarrowToFloat(quantity * windows)));
        }
    }

    /// A composite's quantities are cut to whole pieces before they are multiplied.
    void AddMemberRows(Cursor& row, const LabelSet& labels, double multiplier) {
        const FormulaColumns columns(row);
        for (; !row.Eof(); row.MoveNext()) {
            const double quantity =
                std::floor(static_cast<double>(EvalWithLabels(TextOf(row.Field(columns.quantity)), labels)));
            statement_ = "Insert into 优化数据 (名称,规格,长度,数量) values('";
            AddRow(row, columns, labels, ShortText(quantity * multiplier));
        }
    }

    /// Ends the statement begun with the row's texts, length and quantity, and runs it.
    void AddRow(const Cursor& row, const FormulaColumns& columns, const LabelSet& labels,
                const std::string& quantity) {
        statement_ += TextOf(row.Field(columns.name));
        statement_ += "','";
        statement_ += TextOf(row.Field(columns.material));
        statement_ += "',";
        statement_ += ShortText(EvalWithLabels(TextOf(row.Field(columns.length)), labels));
        statement_ += ',';
        statement_ += quantity;
        statement_ += ')';
        connection_.Execute(statement_);
    }

    Connection& connection_;
    std::map<std::string, Cursor> formulaRows_;  // by statement
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
            if (Val(window.windowType) < 0) {
                gathering.AddComposite(window);
            } else {
                gathering.AddPlain(window);
            }
        }
    });
}

}  // namespace kalvane
