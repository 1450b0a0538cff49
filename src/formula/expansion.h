#pragma once

#include <functional>
#include <string>

#include "formula/bill_row.h"
#include "platform/notice.h"
#include "store/connection.h"

namespace kalvane {

/// A project window as the expansion takes it.
struct WindowToExpand {
    std::string id;      ///< 工程门窗.编号
    std::string typeId;  ///< 门窗编号: 门窗.编号, or for a composite minus the number of its main drawing
    std::string count;  ///< 樘数
};

/// What a fitting row whose 单位 is Null comes to: a failure, or a row that counts 0 and has no unit.
enum class MissingUnit { IsFailure, CountsZero };

using BillSink = std::function<void(const BillRow&)>;

/// True for a composite window: its 门窗编号 is below 0.
bool IsComposite(const WindowToExpand& window);

/// Evaluates the formula rows of the window's type with its labels: profiles, steels, fittings, panels. The
/// quantity of profiles and steels goes down to a whole number before it is multiplied by the 樘数, that of
/// fittings to the nearest one (ties to even). A 樘数 that is no number counts as 0.
///
/// A failure (a Null, a fitting quantity beyond 16 bits, a formula without end, what the sink throws) ends
/// this window: its text goes to `notice`, and the rows handed on before stay.
void ExpandPlain(Connection& connection, const WindowToExpand& window, Notice& notice, const BillSink& sink,
                 MissingUnit missingUnit = MissingUnit::IsFailure);

/// As ExpandPlain for each member of a composite, times the member's count. Failures are thrown; a 樘数
/// that is no number is one.
void ExpandComposite(Connection& connection, const WindowToExpand& window, const BillSink& sink,
                     MissingUnit missingUnit = MissingUnit::IsFailure);

}  // namespace kalvane
