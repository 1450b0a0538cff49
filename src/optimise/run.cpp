#include "optimise/run.h"

#include "numeric/error.h"
#include "optimise/linear_optimiser.h"
#include "optimise/plan_writer.h"
#include "optimise/practical_optimiser.h"

namespace kalvane {
namespace {

/// A run's parts that both schemes work with.
struct Run {
    Connection& connection;
    const OptimiseSettings& settings;
    Notice& notice;
    PlanWriter plan;
    RunReporter reporter;
};

void RunPractical(Run& run, const std::vector<std::string>& materials) {
    for (std::size_t i = 0; i < materials.size(); ++i) {
        run.reporter.StartMaterial(i);
        Cursor demand = run.connection.OpenCursor("Select 长度,sum(数量) from 优化数据 where 规格='" +
                                                  materials[i] + "' group by 长度 order by 长度 Desc");
        OptimisePractical(run.plan, run.settings, run.notice, materials[i], demand, run.reporter);
    }
}

void RunLinear(Run& run, const std::vector<std::string>& materials) {
    LinearOptimiser optimiser(run.plan, run.settings, run.notice, run.reporter);
    for (std::size_t i = 0; i < materials.size(); ++i) {
        run.reporter.StartMaterial(i);
        Cursor demand = run.connection.OpenCursor("Select 长度,数量 from 优化数据  where 规格='" +
                                                  materials[i] + "' order by 长度");
        optimiser.OptimiseLinear(materials[i], run.settings.CLC, demand);
    }
}

}  // namespace

std::vector<std::string> ListMaterials(Connection& connection) {
    std::vector<std::string> materials;
    for (Cursor cursor = connection.OpenCursor("Select 规格 from 优化数据 group by 规格"); !cursor.Eof();
         cursor.MoveNext()) {
        materials.push_back(cursor.Field(0).TextOrEmpty());
    }
    return materials;
}

RunEnd RunOptimisation(Connection& connection, const OptimiseSettings& settings, std::int16_t scheme,
                       const std::vector<std::string>& materials, Notice& notice,
                       const RunProgress& progress) {
    Run run{connection, settings, notice, PlanWriter(connection), RunReporter(progress)};
    try {
        return run.plan.Write([&] { (scheme == 0 ? RunPractical : RunLinear)(run, materials); });
    } catch (const Error& error) {
        notice.Show(error.what(), "出错", NoticeIcon::Error);
        return RunEnd::Failed;
    }
}

}  // namespace kalvane
