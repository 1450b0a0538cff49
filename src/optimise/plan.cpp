#include "optimise/plan.h"

#include <utility>

namespace kalvane {

void InsertPlanRow(Connection& connection, const PlanRow& row) {
    connection.Execute("insert into 优化结果 (材料名称,切割规格,数量,优化比率,剩余料长) values ('" +
                       row.material + "','" + row.pattern + "'," + row.count + "," + row.ratio + "," +
                       row.rest + ")");
}

std::vector<PlanRow> LoadPlan(Connection& connection) {
    std::vector<PlanRow> rows;
    for (Cursor cursor = connection.OpenCursor("Select * from 优化结果"); !cursor.Eof(); cursor.MoveNext()) {
        rows.push_back({cursor.Field("材料名称").TextOrEmpty(), cursor.Field("切割规格").TextOrEmpty(),
                        cursor.Field("数量").TextOrEmpty(), cursor.Field("优化比率").TextOrEmpty(),
                        cursor.Field("剩余料长").TextOrEmpty()});
    }
    return rows;
}

std::vector<PlanRow> LoadSummedPlan(Connection& connection) {
    std::vector<PlanRow> rows;
    for (Cursor cursor =
             connection.OpenCursor("Select 材料名称,切割规格,sum(数量),优化比率,剩余料长 from 优化结果 "
                                   "group by 材料名称,切割规格,优化比率,剩余料长");
         !cursor.Eof(); cursor.MoveNext()) {
        rows.push_back({cursor.Field(0).TextOrEmpty(), cursor.Field(1).TextOrEmpty(),
                        cursor.Field(2).TextOrEmpty(), cursor.Field(3).TextOrEmpty(),
                        cursor.Field(4).TextOrEmpty()});
    }
    return rows;
}

std::vector<CutRow> CutTable(const std::vector<PlanRow>& plan) {
    std::vector<CutRow> table;
    std::string material;
    for (const PlanRow& row : plan) {
        const bool isFollowUp = !table.empty() && row.material == material;
        material = row.material;
        table.push_back({isFollowUp ? "" : row.material, row.pattern, row.count, row.ratio, row.rest});
    }
    return table;
}

std::vector<TotalRow> LoadTotalTable(Connection& connection) {
    Cursor cursor = connection.OpenCursor(
        "Select 材料名称,Sum(数量),Sum(优化比率*数量) / Sum(数量) from 优化结果 group by 材料名称");
    std::vector<TotalRow> rows;
    for (; !cursor.Eof(); cursor.MoveNext()) {
        TotalRow& row = rows.emplace_back();
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = cursor.Field(static_cast<int>(i)).TextOrEmpty();
        }
    }
    return rows;
}

PlanOutput LoadPlanOutput(Connection& connection, std::string projectName, std::string today) {
    return {CutTable(LoadSummedPlan(connection)), LoadTotalTable(connection), std::move(projectName),
            std::move(today)};
}

}  // namespace kalvane
