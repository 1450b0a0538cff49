#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "optimise/demand_file.h"
#include "optimise/run_progress.h"
#include "platform/notice.h"
#include "session/optimise_settings.h"
#include "store/connection.h"

namespace kalvane {

/// A refused manual row: what to say, under the title "提示", and the box to go back to.
struct ManualRowFailure {
    enum class Field { Length, Count };
    Field field;
    std::string message;
    NoticeIcon icon;
};

/// Checks a row before it is added: both fields are filled, and the length is below the bar's.
std::optional<ManualRowFailure> CheckManualRow(const ManualRow& row, const OptimiseSettings& settings);

/// Lays out bars for typed rows, with no project behind them: replaces 优化数据 and 优化结果 and runs the
/// scheme (0 practical, any other linear) with `name` as the material.
///
/// A failure of the linear optimiser is shown under "出错"; all others are thrown, and the rows already
/// written stay.
RunEnd RunManual(Connection& connection, const OptimiseSettings& settings, std::int16_t scheme,
                 const std::string& name, const std::vector<ManualRow>& rows, Notice& notice,
                 const RunProgress& progress);

}  // namespace kalvane
