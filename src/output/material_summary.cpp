#include "output/material_summary.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

// Slots of a catalogue row, which are its columns.
constexpr std::size_t kName = 2;
constexpr std::size_t kCode = 3;
constexpr std::size_t kFittingUnit = 4;
constexpr std::size_t kFittingPrice = 5;
constexpr std::size_t kDensity = 7;  ///< of a profile or steel, kg/m
constexpr std::size_t kPanelPrice = 7;
constexpr std::size_t kTonPrice = 8;

/// A row of OutTJ.
struct PricedRow {
    std::string name;
    std::string code;
    float price = 0;
    std::string unit;
    float quantity = 0;
};

/// One rebuilding of OutTJ.
class Pricing {
  public:
    Pricing(Connection& connection, FieldSlots& slots, TallyView view)
        : connection_(connection), slots_(slots), view_(view) {}

    /// Prices a group under the next number and returns its quantity.
    float Add(const TallyGroup& group) {
        ++number_;
        const CatalogueTable catalogue = CatalogueOf(group.materialClass);
        FetchCatalogueRow(connection_, catalogue.table, catalogue.keyColumn, group.key, slots_);
        PricedRow row = Priced(group);
        row.price = NarrowToFloat(UnitPrice(group.materialClass, slots_));
        row.quantity = NarrowToFloat(TallyQuantity(group, view_));
        if (Trim(row.name).empty()) row.name = "#error#";
        if (Trim(row.code).empty()) row.code = group.key;
        Insert(row, group.materialClass);
        return row.quantity;
    }

    /// The row that ends the table.
    void Close() {
        connection_.Execute("Insert into outtj (Bn) values (" + std::to_string(number_ + 1) + ")");
    }

  private:
    PricedRow Priced(const TallyGroup& group) const {
        const bool isDetail = view_ == TallyView::Detail;
        switch (group.materialClass) {
            case MaterialClass::Profile:
            case MaterialClass::Steel:
                if (isDetail) return {slots_[kName] + slots_[kCode], group.length, 0, "毫米", 0};
                return {slots_[kName], slots_[kCode], 0, "米", 0};
            case MaterialClass::Fitting:
                return {slots_[kName], slots_[kCode], 0, slots_[kFittingUnit], 0};
            case MaterialClass::Panel:
                break;
        }
        return {group.key,
                isDetail ? group.length + "*" + group.width + "*" + ShortText(group.sum) : std::string("-"),
                0, "平方米", 0};
    }

    void Insert(const PricedRow& row, MaterialClass materialClass) {
        const bool isBar = materialClass == MaterialClass::Profile || materialClass == MaterialClass::Steel;
        const float amount =
            NarrowToFloat(static_cast<double>(row.price) * static_cast<double>(row.quantity));
        connection_.Execute(std::string("Insert into OutTJ (") + (isBar ? "BN" : "bn") +
                            ",名称,规格,单价,DW,金额,数量) Values(" + std::to_string(number_) + ",'" +
                            row.name + "','" + row.code + "'," + ShortText(row.price) + ",'" + row.unit +
                            "'," + ShortText(amount) + "," + ShortText(row.quantity) + ")");
    }

    Connection& connection_;
    FieldSlots& slots_;
    const TallyView view_;
    int number_ = 0;
};

/// The sum that a class adds to, or null.
double* TotalOf(TallyState& totals, MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return &totals.ProfileKilograms;
        case MaterialClass::Steel:
            return &totals.SteelKilograms;
        case MaterialClass::Panel:
            return &totals.PanelSquareMetres;
        case MaterialClass::Fitting:
            break;
    }
    return nullptr;
}

}  // namespace

double UnitPrice(MaterialClass materialClass, const FieldSlots& slots) {
    switch (materialClass) {
        case MaterialClass::Profile:
        case MaterialClass::Steel:
            return Val(slots[kTonPrice]) / 1000 * Val(slots[kDensity]);
        case MaterialClass::Fitting:
            return Val(slots[kFittingPrice]);
        case MaterialClass::Panel:
            break;
    }
    return Val(slots[kPanelPrice]);
}

double TallyQuantity(const TallyGroup& group, TallyView view) {
    const bool isDetail = view == TallyView::Detail;
    switch (group.materialClass) {
        case MaterialClass::Profile:
        case MaterialClass::Steel:
            return isDetail ? group.sum : group.sum / 1000;
        case MaterialClass::Fitting:
            return group.sum;
        case MaterialClass::Panel:
            break;
    }
    return isDetail ? Val(group.length) / 1000 * Val(group.width) / 1000 * group.sum : group.sum;
}

void BuildMaterialSummary(Connection& connection, const ClassChoice& classes, FieldSlots& slots,
                          TallyState& totals) {
    InCommand(connection, [&] {
        connection.Execute("Delete * from outTJ");
        Pricing pricing(connection, slots, TallyView::Summary);
        for (const MaterialClass materialClass : kAllClasses) {
            if (!classes.Has(materialClass)) continue;
            const std::vector<TallyGroup> groups = TallyGroups(connection, materialClass, TallyView::Summary);
            double* total = TotalOf(totals, materialClass);
            if (total != nullptr && !groups.empty()) *total = 0;
            for (const TallyGroup& group : groups) {
                const auto quantity = static_cast<double>(pricing.Add(group));
                if (total == nullptr) continue;
                *total += materialClass == MaterialClass::Panel ? quantity : quantity * Val(slots[kDensity]);
            }
        }
        pricing.Close();
    });
}

void BuildMaterialDetail(Connection& connection, const ClassChoice& classes, FieldSlots& slots) {
    InCommand(connection, [&] {
        connection.Execute("Delete * from outTJ");
        Pricing pricing(connection, slots, TallyView::Detail);
        for (const MaterialClass materialClass : kAllClasses) {
            if (!classes.Has(materialClass)) continue;
            for (const TallyGroup& group : TallyGroups(connection, materialClass, TallyView::Detail)) {
                try {
                    pricing.Add(group);
                } catch (const Error&) {
                    continue;  // a row that cannot be written must not keep the others from the sheet
                }
            }
        }
        pricing.Close();
    });
}

}  // namespace kalvane
