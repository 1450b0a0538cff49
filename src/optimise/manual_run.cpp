#include "optimise/manual_run.h"

#include "numeric/number.h"
#include "optimise/linear_optimiser.h"
#include "optimise/plan_writer.h"
#include "optimise/practical_optimiser.h"
#include "store/command_scope.h"

namespace kalvane {

std::optional<ManualRowFailure> CheckManualRow(const ManualRow& row, const OptimiseSettings& settings) {
    using Field = ManualRowFailure::Field;
    const auto isMissing = [](const std::string& text) { return text.empty() || text == "0"; };
    if (isMissing(row.length)) return ManualRowFailure{Field::Length, "数据不能为空！", NoticeIcon::None};
    if (isMissing(row.count)) return ManualRowFailure{Field::Count, "数据不能为空！", NoticeIcon::None};
    if (Val(row.length) >= settings.CLC) {
        return ManualRowFailure{Field::Length, "数据大于" + std::to_string(settings.CLC) + "！",
                                NoticeIcon::Error};
    }
    return std::nullopt;
}

RunEnd RunManual(Connection& connection, const OptimiseSettings& settings, std::int16_t scheme,
                 const std::string& name, const std::vector<ManualRow>& rows, Notice& notice,
                 const RunProgress& progress) {
    InCommand(connection, [&] {
        connection.Execute("Delete * from 优化数据");
        connection.Execute("Delete * from 优化结果");
        for (const ManualRow& row : rows) {
            connection.Execute("Insert into 优化数据 (长度,数量) values(" + row.length + "," + row.count +
                               ")");
        }
    });
    PlanWriter plan(connection);
    RunReporter reporter(progress);
    return plan.Write([&] {
        reporter.StartMaterial(0);
        if (scheme == 0) {
            Cursor demand = connection.OpenCursor(
                "Select 长度,sum(数量) from 优化数据  group by 长度 order by 长度 desc");
            OptimisePractical(plan, settings, notice, name, demand, reporter);
        } else {
            Cursor demand =
                connection.OpenCursor("Select 长度,sum(数量) from 优化数据  group by 长度 order by 长度");
            LinearOptimiser(plan, settings, notice, reporter).OptimiseLinear(name, settings.CLC, demand);
        }
    });
}

}  // namespace kalvane
