#include "wind/sliding_form.h"

#include <array>

#include "numeric/number.h"
#include "wind/wind_tables.h"

namespace kalvane {
namespace {

using Names = std::string_view;

constexpr std::array<Names, 6> kLayouts = {"二扇推拉窗", "二扇带亮推拉窗", "二扇带亮含中梃推拉窗",
                                           "三扇推拉窗", "三扇带亮推拉窗", "三扇带亮含中梃推拉窗"};
constexpr std::array<SlidingLayout, kLayouts.size()> kLayoutOf = {{{2, false, false},
                                                                   {2, true, false},
                                                                   {2, true, true},
                                                                   {3, false, false},
                                                                   {3, true, false},
                                                                   {3, true, true}}};
constexpr std::array<Names, kTerrains> kTerrainNames = {"A类", "B类", "C类", "D类"};
constexpr std::array<Names, kHeights> kHeightNames = {
    "5米",  "10米",  "15米",  "20米",  "30米",  "40米",  "50米",  "60米",  "70米",   "80米",
    "90米", "100米", "150米", "200米", "250米", "300米", "350米", "400米", ">=450米"};
constexpr std::array<Names, 2> kBuildings = {"一般建筑", "高层建筑"};
constexpr std::array<Names, kGlasses> kGlassNames = {"浮法玻璃", "半钢化玻璃", "钢化玻璃", "夹层玻璃",
                                                     "中空玻璃", "夹丝玻璃",   "压花玻璃", "单片防火玻璃"};
constexpr std::array<Names, kSteelTypes> kSteels = {"槽钢 ㄩ", "方钢 □"};
constexpr std::array<Names, kSteelThicknesses> kThicknesses = {"1.2mm", "1.5mm", "2.0mm", "2.5mm", "3.0mm"};
constexpr std::array<Names, 2> kShapes = {"1.3", "1.5"};

constexpr Names kBasis =
    "(1) 建筑结构荷载规范(GB 50009-2001)\n"
    "(2) 建筑玻璃应用技术规程(JGJ 113-2003)\n"
    "(3) 工程幕墙工程技术规范(JGJ 102-96)\n"
    "(4) 建筑外窗抗风压性能分级及检测方法(GB/T 7106-86)";

constexpr std::array<FormBox, 22> kBoxes = {{
    {"txtGCMC", "工程名称：", ""},
    {"cmbMCLX", "选用门窗：", "二扇推拉窗", BoxKind::Choice, kLayouts},
    {"txtMCBH", "门窗编号：", ""},
    {"txtMCCC", "门窗尺寸：", ""},
    {"rtxJHYJ", "校核依据：", kBasis, BoxKind::Lines},
    {"txtCS", "城市：", "厦门"},
    {"txtFYZ", "基本风压值KN/平方米：", "0.8", BoxKind::Decimal},
    {"cmbDMCCD", "地面粗糙度：", "A类", BoxKind::Choice, kTerrainNames},
    {"cmbJZGD", "建筑高度：", "5米", BoxKind::Choice, kHeightNames},
    {"cmbJZWLX", "建筑物类型：", "一般建筑", BoxKind::Choice, kBuildings},
    {"cmbBLZL", "玻璃类型：", "浮法玻璃", BoxKind::Choice, kGlassNames},
    {"txtBLHD", "玻璃厚度：", "5", BoxKind::Digits, {}, "mm"},
    {"txtBLCD", "玻璃宽度：", "", BoxKind::Decimal, {}, "mm"},
    {"txtBLGD", "玻璃高度：", "", BoxKind::Decimal, {}, "mm"},
    {"txtSKD", "扇宽度：", "", BoxKind::Decimal, {}, "mm"},
    {"txtSGD", "扇高度：", "", BoxKind::Decimal, {}, "mm"},
    {"txtLZKD", "亮子宽度：", "", BoxKind::Decimal, {}, "mm"},
    {"txtLZGD", "亮子高度：", "", BoxKind::Decimal, {}, "mm"},
    {"cmbXGLX", "型钢类型：", "槽钢 ㄩ", BoxKind::Choice, kSteels},
    {"cmbXGBH", "型钢壁厚：", "1.2mm", BoxKind::Choice, kThicknesses},
    {"txtXGGXG", "型钢惯性矩：", "1.045", BoxKind::Decimal, {}, "cm⁴"},
    {"cmbFHZTXXS", "风荷载体型系数：", "1.3", BoxKind::EditableChoice, kShapes},
}};

/// In the order of the questions, which is not that of the screen.
constexpr std::array<Refusal, 10> kRefusals = {{
    {"cmbFHZTXXS", "风荷载体型系数不能为空!"},
    {"txtFYZ", "风压值不能为空!"},
    {"txtBLHD", "玻离厚度不能为空！"},
    {"txtBLCD", "玻璃宽度不能为空！"},
    {"txtBLGD", "玻璃高度不能为空！"},
    {"txtSKD", "扇宽度不能为空!"},
    {"txtSGD", "扇高度不能为空!"},
    {"txtLZKD", "亮子宽度不能为空!"},
    {"txtLZGD", "亮子高度不能为空!"},
    {"txtXGGXG", "型钢惯性矩不能为空!"},
}};

}  // namespace

FormBoxes SlidingBoxes() {
    return kBoxes;
}

SlidingLayout LayoutOf(const FormTexts& texts) {
    return kLayoutOf[texts.Choice("cmbMCLX")];
}

std::optional<Refusal> SlidingRefusal(const FormTexts& texts) {
    const bool hasTopLight = LayoutOf(texts).hasTopLight;
    for (const Refusal& refusal : kRefusals) {
        const bool isOfTopLight = refusal.name.starts_with("txtLZ");
        if (texts.Text(refusal.name).empty() && (hasTopLight || !isOfTopLight)) return refusal;
    }
    return std::nullopt;
}

void TakeSteelInertia(FormTexts& texts) {
    texts.Set("txtXGGXG", ShortText(SteelInertia(texts.Choice("cmbXGLX"), texts.Choice("cmbXGBH"))));
}

}  // namespace kalvane
