#include "optimise/project_material.h"

#include <array>
#include <cmath>
#include <optional>

#include "formula/composite.h"
#include "formula/expansion.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "project/project_windows.h"

namespace kalvane {
namespace {

constexpr double kMillimetresInMetre = 1000;
constexpr double kMillimetresInSquareMetre = 1'000'000;

/// What the windows need of a material in all.
struct Sum {
    MaterialClass materialClass;
    std::string name;
    std::string code;
    std::string unit;
    double pieces = 0;
    double extent = 0;  ///< mm of bars, mm² of panels
};

/// Sums the rows of a bill by material.
class Tally {
  public:
    void Add(const BillRow& row) {
        const double pieces = Val(row.quantity);
        if (pieces <= 0) return;
        const bool isPanel = row.materialClass == MaterialClass::Panel;
        Sum& sum = SumOf(row, isPanel ? row.name : row.code);
        sum.pieces += pieces;
        sum.extent += pieces * Val(row.length) * (isPanel ? Val(row.width) : 1);
    }

    /// By class, then as they were first needed.
    std::vector<Sum> Sums() const {
        std::vector<Sum> sorted;
        for (const MaterialClass materialClass : kAllClasses) {
            for (const Sum& sum : sums_) {
                if (sum.materialClass == materialClass) sorted.push_back(sum);
            }
        }
        return sorted;
    }

  private:
    Sum& SumOf(const BillRow& row, const std::string& code) {
        for (Sum& sum : sums_) {
            if (sum.materialClass == row.materialClass && sum.code == code) return sum;
        }
        sums_.push_back({row.materialClass, row.name, code, std::string(Trim(row.unit))});
        return sums_.back();
    }

    std::vector<Sum> sums_;
};

Tally TallyOf(Connection& main, const std::string& projectNumber, Notice& notice) {
    Tally tally;
    FormulaRows rows(main);
    const BillSink sink = [&tally](const BillRow& row) { tally.Add(row); };
    for (const WindowEntry& window : ListWindows(main, projectNumber)) {
        const WindowToExpand one{window.number, window.typeNumber, window.count};
        try {
            if (IsComposite(window.typeNumber)) {
                ExpandComposite(main, rows, one, sink);
            } else {
                ExpandPlain(main, rows, one, notice, sink);
            }
        } catch (const Error& failure) {
            notice.Show("门窗“" + window.name + "”的用料没有算完：" + failure.what(), "提示",
                        NoticeIcon::Warning);
        }
    }
    return tally;
}

std::optional<double> NumberOf(Connection& main, const std::string& sql) {
    const Cursor row = main.OpenCursor(sql);
    if (row.Eof() || row.Field(0).IsNull()) return std::nullopt;
    return row.Field(0).Number();
}

/// The bars of the plan, when it cuts just these pieces.
std::optional<double> BarsOfPlan(Connection& main, const Sum& sum) {
    const std::string code = "'" + sum.code + "'";
    const auto planned = NumberOf(main, "Select sum(长度*数量) from 优化数据 where 规格=" + code);
    // The demand has each length as a whole number of millimetres.
    if (!planned || std::abs(*planned - sum.extent) > sum.pieces / 2) return std::nullopt;
    return NumberOf(main, "Select sum(数量) from 优化结果 where 材料名称=" + code);
}

std::string CutTo2Decimals(double value) {
    constexpr double kHundred = 100;
    return ShortText(std::round(value * kHundred) / kHundred);
}

/// The whole number of stock pieces that hold an extent; one that is met exactly is not topped up.
double RoundedUp(double extent, double ofOne) {
    constexpr double kSlack = 1e-9;
    return std::ceil(extent / ofOne - kSlack);
}

void CountBars(Connection& main, const Sum& sum, std::int16_t usualBar, MaterialNeed& need) {
    const bool isProfile = sum.materialClass == MaterialClass::Profile;
    need.kind = isProfile ? "型材" : "型钢";
    need.unit = "支";
    const Cursor bars = main.OpenCursor((isProfile ? "Select 型材名称,型材长度 from 型材 where 型材型号='"
                                                   : "Select 型钢名称,型钢长度 from 型钢 where 型钢规格='") +
                                        sum.code + "'");
    double length = 0;
    if (!bars.Eof()) {
        // The formula row calls it by the part that is made of it.
        const std::string name = bars.Field(0).TextOrEmpty();
        if (!name.empty()) need.name = name;
        length = Val(bars.Field(1).TextOrEmpty());
    }
    if (const auto planned = BarsOfPlan(main, sum)) {
        need.count = ShortText(*planned);
        need.basis = "优化结果";
        return;
    }
    const double bar = length > 0 ? length : usualBar;
    if (bar <= 0) {
        need.count = ShortText(sum.pieces);
        need.basis = "段数：材料库和选项设置里没有材料长度";
        return;
    }
    need.count = ShortText(RoundedUp(sum.extent, bar));
    need.basis = CutTo2Decimals(sum.extent / kMillimetresInMetre) + "米÷" +
                 CutTo2Decimals(bar / kMillimetresInMetre) + "米";
}

void CountPanels(Connection& main, const Sum& sum, MaterialNeed& need) {
    need.kind = "板材";
    need.unit = "块";
    const Cursor sheet = main.OpenCursor("Select 玻璃长,玻璃宽 from 玻璃 where 玻璃名称='" + sum.code + "'");
    double area = 0;
    if (!sheet.Eof() && !sheet.Field(0).IsNull() && !sheet.Field(1).IsNull()) {
        area = sheet.Field(0).Number() * sheet.Field(1).Number();
    }
    if (area <= 0) {
        need.count = ShortText(sum.pieces);
        need.basis = "成品块数";
        return;
    }
    need.count = ShortText(RoundedUp(sum.extent, area));
    need.basis = CutTo2Decimals(sum.extent / kMillimetresInSquareMetre) + "平方米÷" +
                 CutTo2Decimals(area / kMillimetresInSquareMetre) + "平方米";
}

}  // namespace

std::vector<MaterialNeed> MaterialOfProject(Connection& main, const std::string& projectNumber,
                                            std::int16_t usualBar, Notice& notice) {
    std::vector<MaterialNeed> needs;
    for (const Sum& sum : TallyOf(main, projectNumber, notice).Sums()) {
        MaterialNeed& need = needs.emplace_back();
        need.name = sum.name;
        need.code = sum.code;
        switch (sum.materialClass) {
            case MaterialClass::Profile:
            case MaterialClass::Steel:
                CountBars(main, sum, usualBar, need);
                break;
            case MaterialClass::Fitting:
                need.kind = "五金件";
                need.unit = sum.unit;
                need.count = ShortText(std::ceil(sum.pieces));
                need.basis = "件数";
                break;
            case MaterialClass::Panel:
                CountPanels(main, sum, need);
                break;
        }
    }
    return needs;
}

}  // namespace kalvane
