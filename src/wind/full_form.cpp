#include "wind/full_form.h"

#include <algorithm>
#include <array>

#include "numeric/number.h"
#include "wind/wind_tables.h"

namespace kalvane {
namespace {

using Names = std::string_view;

constexpr std::array<Names, 18> kHeightNames = {"5",   "10",  "15",  "20",  "30",  "40",
                                                "50",  "60",  "70",  "80",  "90",  "100",
                                                "150", "200", "250", "300", "350", ">=400"};
constexpr std::array<Names, 2> kBuildings = {"一般高层建筑物", "超高层建筑物"};
constexpr std::array<Names, 3> kTerrainNames = {"A类", "B类", "C类"};
constexpr std::array<Names, kGlasses> kGlassNames = {
    "普通退火玻璃", "半钢化玻璃", "钢化玻璃", "夹层玻璃", "中空玻璃", "夹丝玻璃", "压花玻璃", "单片防火玻璃"};
constexpr std::array<Names, kBending.size()> kRatios = {"0.00", "0.25", "0.33", "0.40", "0.50",
                                                        "0.55", "0.60", "0.65", "0.70", "0.75",
                                                        "0.80", "0.85", "0.90", "0.95", "1.00"};

constexpr std::array<FormBox, 11> kBaseBoxes = {{
    {"Text2", "城市：", "厦门"},
    {"Text1", "工程门窗：", ""},
    {"Text3", "基本风压值(KN/m^2)：", "0.8"},
    {"Combo3", "建筑物高度(M)：", "", BoxKind::Choice, kHeightNames},
    {"Combo1", "建筑物类型：", "", BoxKind::Choice, kBuildings},
    {"Combo2", "地面粗糙度：", "", BoxKind::Choice, kTerrainNames},
    {"Text4", "最低温度：", "-5", BoxKind::Text, {}, "℃"},
    {"Text5", "最高温度：", "45", BoxKind::Text, {}, "℃"},
    {"Text6", "阵风系数：", "1.92"},
    {"Text7", "风荷载体型系数：", "1"},
    {"Text8", "风荷载设计值系数：", "1.05"},
}};

constexpr std::array<FormBox, 15> kDetailBoxes = {{
    {"Text1", "洞口宽度(mm)：", "855"},
    {"Text2", "洞口高度(mm)：", "950"},
    {"Text3", "型材类型：", "60固定框"},
    {"Text4", "型材厚度(mm)：", "60"},
    {"Text9", "型钢类型：", "A3号槽钢"},
    {"Text10", "型钢厚度(mm)：", "15"},
    {"Text6", "玻璃品种：", "单层玻璃"},
    {"Combo1", "玻璃种类：", "普通退火玻璃", BoxKind::Choice, kGlassNames},
    {"Text7", "玻璃厚度(mm)：", "5"},
    {"Text8", "玻璃边缘到连框间的距离(mm)：", "7"},
    {"Text11", "玻璃宽度(mm)：", "771"},
    {"Text12", "玻璃长度(mm)：", "888"},
    {"Text13", "螺钉小径(mm)：", "4"},
    {"Combo2", "弯矩系数取长短边比值：", "0.25", BoxKind::Choice, kRatios},
    {"Text5", "长短边比值：", ""},
}};

constexpr std::string_view kNothingChosen = "数据不能为空！";
constexpr std::array<Refusal, 5> kRefusals = {{
    {"Combo1", kNothingChosen},
    {"Combo2", kNothingChosen},
    {"Combo3", kNothingChosen},
    {"Text6", "阵风系数不能为空!"},
    {"Text7", "风荷载体型系数不能为空！"},
}};

}  // namespace

FormBoxes FullBaseBoxes() {
    return kBaseBoxes;
}

FormBoxes FullDetailBoxes() {
    return kDetailBoxes;
}

std::optional<Refusal> FullRefusal(const FormTexts& base) {
    for (const Refusal& refusal : kRefusals) {
        if (base.Text(refusal.name).empty()) return refusal;
    }
    return std::nullopt;
}

std::string EdgeRatio(std::string_view width, std::string_view length) {
    if (width.empty() || length.empty()) return {};
    const double first = Val(width);
    const double second = Val(length);
    const double longer = std::max(first, second);
    return longer == 0 ? std::string() : ShortText(std::min(first, second) / longer);
}

}  // namespace kalvane
