#pragma once

#include <functional>
#include <string>

#include "formula/formula_rows.h"
#include "platform/notice.h"
#include "store/connection.h"

namespace kalvane {

/// A project window as the expansion takes it.
struct WindowToExpand {
    std::string id;      ///< 工程门窗.编号
    std::string typeId;  ///< 门窗编号: 门窗.编号, or for a composite minus the number of its main drawing
    std::string count;  ///< 樘数
};

using BillSink = std::function<void(const BillRow&)>;

/// What a fitting row without 单位 is: a failure, or a row that counts 0 whatever its formula.
enum class NullUnit { Fails, CountsZero };

/// Evaluates the formula rows of the window's type with its labels: profiles, steels, fittings, panels. The
/// quantity of profiles and steels is rounded down before it is multiplied by the 樘数, that of fittings to
/// the nearest whole number (ties to even). A 樘数 that is no number counts as 0. `rows` serves all windows
/// of a command.
///
/// A failure (a Null, a fitting quantity beyond 16 bits, a formula without end, what the sink throws) ends
/// this window: its text is shown by `notice`, and the rows handed on before stay.
void ExpandPlain(Connection& connection, FormulaRows& rows, const WindowToExpand& window, Notice& notice,
                 const BillSink& sink, NullUnit nullUnit = NullUnit::Fails);

/// As ExpandPlain for each member of a composite, times the member's count. Failures are thrown; a 樘数
/// that is no number is one.
void ExpandComposite(Connection& connection, FormulaRows& rows, const WindowToExpand& window,
                     const BillSink& sink, NullUnit nullUnit = NullUnit::Fails);

}  // namespace kalvane
