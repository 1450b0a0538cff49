#include "optimise/run.h"

#include "optimise/linear_optimiser.h"
#include "optimise/practical_optimiser.h"
#include "platform/error.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

void RunPractical(Connection& connection, const OptimiseSettings& settings,
                  const std::vector<std::string>& materials, Notice& notice, const RunProgress& progress) {
    for (std::size_t i = 0; i < materials.size(); ++i) {
        if (progress) progress(i);
        Cursor demand = connection.OpenCursor("Select 长度,sum(数量) from 优化数据 where 规格='" +
                                              materials[i] + "' group by 长度 order by 长度 Desc");
        OptimisePractical(connection, settings, notice, materials[i], demand);
    }
}

void RunLinear(Connection& connection, const OptimiseSettings& settings,
               const std::vector<std::string>& materials, Notice& notice, const RunProgress& progress) {
    std::size_t current = 0;
    LinearOptimiser optimiser(connection, settings, notice, [&] {
        if (progress) progress(current);
    });
    for (; current < materials.size(); ++current) {
        if (progress) progress(current);
        Cursor demand = connection.OpenCursor("Select 长度,数量 from 优化数据  where 规格='" +
                                              materials[current] + "' order by 长度");
        optimiser.OptimiseLinear(materials[current], settings.CLC, demand);
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

void RunOptimisation(Connection& connection, const OptimiseSettings& settings, std::int16_t scheme,
                     const std::vector<std::string>& materials, Notice& notice, const RunProgress& progress) {
    try {
        InCommand(connection, [&] {
            connection.Execute("Delete from 优化结果");
            const auto run = scheme == 0 ? RunPractical : RunLinear;
            run(connection, settings, materials, notice, progress);
        });
    } catch (const Error& error) {
        notice.Show(error.what(), "出错", NoticeIcon::Error);
    }
}

}  // namespace kalvane
