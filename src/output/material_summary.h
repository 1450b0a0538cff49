#pragma once

#include "output/tally_groups.h"
#include "session/tally_state.h"
#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

// The pricing: the raw rows of a gathering, grouped and looked up in the catalogue, as rows of OutTJ. They
// are numbered through all classes in the order of kAllClasses, and a row with the next number alone ends
// them. The raw rows stay as they are. Each builder is one command.
//
// A key that the catalogue has not leaves `slots` as they were, so that its row carries the name, the price
// and the unit of the lookup before. Only where the name is blank then it becomes "#error#".

/// Rebuilds OutTJ as the summary: metres, square metres and counts, priced, and sets the sums of the chosen
/// classes that have rows. Throws StoreError, and NumericError for a value beyond a 32-bit float; the rows
/// before it stay.
void BuildMaterialSummary(Connection& connection, const ClassChoice& classes, FieldSlots& slots,
                          TallyState& totals);

/// Rebuilds OutTJ as the detail: pieces by 规格 and size. The amount of a profile or steel is that
/// of its pieces times the price of a metre, whatever their length. A row that cannot be written is left out,
/// and its number with it.
void BuildMaterialDetail(Connection& connection, const ClassChoice& classes, FieldSlots& slots);

/// The price of a class's unit (a metre, a square metre, a fitting) by the catalogue row in `slots`, as a
/// 64-bit float.
double UnitPrice(MaterialClass materialClass, const FieldSlots& slots);

/// The quantity of a group in the unit of its price as the tally shows it, as a 64-bit float.
double TallyQuantity(const TallyGroup& group, TallyView view);

}  // namespace kalvane
