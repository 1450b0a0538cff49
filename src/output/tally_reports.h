#pragma once

#include <string>

#include "output/settlement.h"
#include "output/tally_groups.h"
#include "page/report.h"
#include "session/tally_state.h"
#include "store/connection.h"

namespace kalvane {

/// What the reports of an order say of it beside their rows.
struct ReportHead {
    std::string project;  ///< 工程名称
    std::string today;    ///< as it is to appear
};

/// The parties of a settlement.
struct SettlementParties {
    std::string client;  ///< 发包单位
    std::string maker;   ///< 制作单位
};

/// Sets the title of drTJCL01 and the totals of the chosen classes; those of the others keep their texts.
void SetMaterialLabels(TallyState& tally, const ClassChoice& classes, const std::string& company);

// The reports on the rows that OutTJ and OutJS have when they are made. They throw StoreError.

/// Quantities of material, under the labels in `tally`.
Report drTJCL01(Connection& connection, const ReportHead& head, const TallyState& tally);
/// Prices of material, with the fees and the total.
Report drTJCL02(Connection& connection, const ReportHead& head, const std::string& company,
                const OrderFees& fees);
/// Areas of doors and windows.
Report drJSB01(Connection& connection, const ReportHead& head, const SettlementParties& parties);
/// Settlement of doors and windows.
Report drJSB02(Connection& connection, const ReportHead& head, const SettlementParties& parties);

}  // namespace kalvane
