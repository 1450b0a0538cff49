#pragma once

#include <string>

#include "optimise/plan_writer.h"
#include "optimise/run_progress.h"
#include "platform/notice.h"
#include "session/optimise_settings.h"
#include "store/cursor.h"

namespace kalvane {

/// The first scheme, from shop practice: fills each bar longest piece first, as many of one length as fit,
/// and then continues with the next length that fits. Writes one row of 优化结果 per bar.
///
/// `name` is the material's 规格; `demand` has a length (mm) and its summed pieces per row, longest first.
/// A length that no bar can give, or a negative one, is reported, and what is left of the material is
/// dropped. Throws NumericError when a number leaves 16 bits or a piece takes nothing of the
/// bar, StoreError when a row is refused; the rows of the bars before stay.
void OptimisePractical(PlanWriter& plan, const OptimiseSettings& settings, Notice& notice,
                       const std::string& name, Cursor& demand, RunReporter& reporter);

}  // namespace kalvane
