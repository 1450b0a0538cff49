#include "wind/full_report.h"

#include "numeric/assertion.h"
#include "numeric/number.h"
#include "wind/verdict.h"

namespace kalvane {
namespace {

using Lines = std::vector<std::string>;

std::string Whole(std::int16_t value) {
    return ShortText(std::int64_t{value});
}

void Append(Lines& lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

Lines LoadLines(const FormTexts& base, const FullLoad& load) {
    return {
        "                    =====建筑门窗框、扇及玻璃校核报告=====",
        "",
        "工程门窗：" + base.Text("Text1"),
        "1 计算标准风压值：",
        "   城市:" + base.Text("Text2"),
        "   基本风压(W0):" + ShortText(load.w0),
        "   建筑物高度:" + base.Text("Combo3") + "m",
        "   地面粗糙度:" + base.Text("Combo2"),
        "",
        "   计算公式:",
        "       WK = Bgz * Us * Uz * W0",
        "           wk  风荷载标准值",
        "           Bz  Z高度处的风振系数",
        "           Us  风荷载体型系数",
        "           Uz  风压高度变化系数",
        "           W0  基本风压值  ",
        "       Bgz = " + ShortText(load.bgz),
        "       Us = " + ShortText(load.us),
        "       Uz = " + ShortText(load.uz),
        "       W0 = " + ShortText(load.w0),
        "   计算结果：",
        "       风荷载标准值：" + ShortText(load.wk) + "KN/m^2",
        "       风荷载设计值：" + ShortText(load.wd) + "KN/m^2",
        "",
    };
}

Lines GlassLines(const FormTexts& detail, const FullLoad& load, const FullNumbers& numbers) {
    return {
        "2 校核玻璃强度：",
        "   最低温度：" + Whole(load.lowest) + "摄氏度",
        "   最高温度：" + Whole(load.highest) + "摄氏度",
        "   玻璃品种：" + detail.Text("Text6"),
        "   玻璃种类：" + detail.Text("Combo1"),
        "   玻璃厚度：" + ShortText(numbers.t),
        "   玻璃宽度：" + ShortText(numbers.width),
        "   玻璃长度：" + ShortText(numbers.length),
        "   玻璃连缘到边框间的距离：" + ShortText(numbers.c),
        "   玻璃力学参数:",
        "   弹性模量: 72000 N/mm^2",
        "   线膨胀系数：1*10^(-5)",
        "   抗风压调整系数：" + ShortText(numbers.a),
        "   玻璃种类系数：80",
        numbers.isTempered ? "   大面上的强度：84 N/mm^2" : "   大面上的强度：28 N/mm^2",
        "   直边缘强度：19.5 N/mm^2",
        "   玻璃安全系数：2.5",
        "",
    };
}

Lines AreaLines(const FullNumbers& numbers) {
    return {
        "   计算允许最大面积：",
        "   计算公式：",
        numbers.isThick ? "       Amax = (a*(0.2*t^1.6+0.8))/Wk" : "       Amax = (0.2*a*t^1.8)/Wk",
        "           Amax  玻璃允许最大面积",
        "           a     抗风压调整系数",
        "           t     玻璃厚度",
        "           Wk    风荷载标准值",
        "      计算结果:" + ShortText(numbers.area.limit),
        "       玻璃面积为:" + ShortText(numbers.area.value),
        "       计算结果:" + VerdictWord(numbers.area.passes),
        "",
    };
}

Lines BendingLines(const FullLoad& load, const FullNumbers& numbers) {
    return {
        "   弯曲应力校核：",
        "   计算公式：",
        "       SW = 6 * Q1 * W * a^2 / t^2",
        "           SW  玻璃弯曲应力",
        "           Q1  弯曲系数",
        "           W   风荷载设计值",
        "           a   玻璃短边边长",
        "           t   玻璃厚度",
        "       W = " + ShortText(load.wd) + "KN/m^2",
        "       a = " + ShortText(numbers.shorter) + "mm",
        "       t = " + ShortText(numbers.t),
        "       Q1 = " + ShortText(numbers.q1),
        "       最大弯曲应力：" + ShortText(numbers.bending.value),
        "       弯曲强度设计值:" + ShortText(numbers.bending.limit) + " N/mm^2",
        "       校核结果:" + VerdictWord(numbers.bending.passes),
        "",
    };
}

Lines TemperatureLines(const FullNumbers& numbers) {
    return {
        "   校验年温度应力：",
        "   计算公式：",
        "       st = E * (at * △T - (2 * c - d) / b)",
        "           st  玻璃年温度应力",
        "           E   玻璃弹性模量",
        "           at  玻璃线膨胀系数",
        "           △T  年最大温差",
        "           c   玻璃边缘到边框间的距离",
        "           d   玻璃边缘允许偏差",
        "           b   玻璃长边边长",
        "       E = 72000 N/mm^2",
        "       at = 1 * 10^(-5)",
        "       △t = " + Whole(numbers.span),
        "       c = " + ShortText(numbers.c),
        "       d = 3",
        "       b = " + ShortText(numbers.longer),
        "   计算结果：",
        "       年温度应力值：" + ShortText(numbers.temperature.value) + "N/mm^2",
        "       玻璃边缘强度：19.5 N/mm^2",
        "       校核结果：" + VerdictWord(numbers.temperature.passes),
        "",
    };
}

Lines DeflectionLines(const FullNumbers& numbers) {
    return {
        "   挠度校验：",
        "   计算公式：",
        "       u = Q2 * q * a^4 / D",
        "           u   玻璃跨中挠度",
        "           Q2  挠度系数",
        "           q   均布荷载",
        "           a   玻璃短边边长",
        "           D   玻璃弯曲刚度 = E * t^3 / (12 * (1 - v^2))",
        "           E   玻璃弹性模量",
        "           t   玻璃厚度",
        "           v   玻璃泊松比",
        "       Q2 = 0.00528392",
        "       q = 1.0N/mm^2",
        "       跨中最大挠度：" + ShortText(numbers.deflection.value) + "mm",
        "       校核结果：" + VerdictWord(numbers.deflection.passes),
        "",
    };
}

Lines ScrewLines(const FullNumbers& numbers) {
    return {
        "3 计算最少螺钉数:",
        "   洞口宽度" + ShortText(numbers.b),
        "   洞口高度" + ShortText(numbers.h),
        "   螺钉抗剪强度设计值  130 N/mm^2",
        "   计算公式：",
        "       wh = (wd / 1000) * b * h",
        "           wh  洞口风荷载",
        "           wd  风荷载设计值",
        "           b   洞口宽度",
        "           h   洞口高度",
        "       N = wh / (3.1415926 * d^2 / 4 * S)",
        "           N   总共所需螺钉数",
        "           wh  洞口风荷载",
        "           d   螺钉小径",
        "           S   螺钉抗剪强度设计值",
        "       Nb = N * b / (2 * (b + h))",
        "           Nb  宽度方向所需螺钉数",
        "           N   总共所需螺钉数",
        "           b   洞口宽度",
        "           h   洞口高度",
        "       Nh = N * h / (2 * (b + h))",
        "           Nh  高度方向所需螺钉数",
        "           N   总共所需螺钉数",
        "           b   洞口宽度",
        "           h   洞口高度",
        "   计算结果：",
        "       洞口风荷载： " + ShortText(numbers.openingLoad),
        "       总共所需螺钉数:" + ShortText(numbers.screws),
        "       宽度方向所需螺钉数:2 *" + ShortText(numbers.widthScrews),
        "       高度方向所需螺钉数:2 *" + ShortText(numbers.heightScrews),
        "",
    };
}

Lines FrameLines(const FormTexts& detail, const FullNumbers& numbers) {
    return {
        "4 校核横框及立框的强度",
        "   型材类型:" + detail.Text("Text3"),
        "   型材弹性模量(E):70000 N/mm^2",
        "   型材抗拉强度：84.2 N/mm^2",
        "   型材抗剪强度：48.9 N/mm^2",
        "   型材厚度" + detail.Text("Text4"),
        "   增强型钢类型：" + detail.Text("Text9"),
        "   增强型钢弹性模量(E):210000 N/mm^2",
        "   增强型钢抗拉强度：215 N/mm^2",
        "   增强型钢抗剪强度：125 N/mm^2",
        "   增强型钢宽度:" + detail.Text("Text10"),
        "    增强型钢横框截面惯性矩(IZ):980000 mm^4",
        "    增强型钢横框截面抵抗矩(WZ):22000 mm^3",
        "    增强型钢横框面面积矩(Ssz):24000 mm^3",
        "    增强型钢立框截面惯性矩(IZ):1.47653e+07 mm^4",
        "    增强型钢立框截面抵抗矩(WZ):146190 mm^3",
        "    增强型钢立框面面积矩(Ssz):98745",
        "   洞口宽度" + ShortText(numbers.b),
        "   洞口高度" + ShortText(numbers.h),
        "",
    };
}

Lines ForceLines(const FullNumbers& numbers) {
    return {
        "   计算荷载及内力：",
        "   计算公式：",
        "       qb = (wd / 1000) * h",
        "           qb  横框线荷载",
        "           wd  风荷载设计值",
        "           h   洞口高度",
        "       qh = (wd / 1000) * b",
        "           qh  立框线荷载",
        "           wd  风荷载设计值",
        "           b   洞口宽度",
        "       Mzb = qb * b^2 / 8",
        "           Mzb  横框最大弯矩",
        "           qb   横框线荷载",
        "           b    洞口宽度",
        "       Mzh = qh * h^2 / 8",
        "           Mzh  立框最大弯矩",
        "           qh   立框线荷载",
        "           h    洞口高度",
        "       Qb = qb * b / 2",
        "           Qb  横框端部剪力",
        "       Qh = qh * h / 2",
        "           Qh  立框端部剪力",
        "   计算结果：",
        "       qb = " + ShortText(numbers.qb) + "N/mm",
        "       qh = " + ShortText(numbers.qh) + "N/mm",
        "       Mzb = " + ShortText(numbers.mzb) + "N*mm",
        "       Mzh = " + ShortText(numbers.mzh) + "N*mm",
        "       Qb = " + ShortText(numbers.shearB) + "N",
        "       Qh = " + ShortText(numbers.shearH) + "N",
        "",
    };
}

Lines StressLines(const FullNumbers& numbers) {
    return {
        "   校核正应力及剪应力：",
        "   计算公式：",
        "       Sm = Mz / (r * Wz)",
        "           Sm  截面正应力",
        "           Mz  最大弯矩",
        "           r   截面塑性发展系数，r = 1.05",
        "           Wz  截面抵抗矩",
        "",
        "       SQ = Q * Ssz / ( IZ * t)",
        "           SQ   截面剪应力",
        "           Q    端部剪力",
        "           Ssz  截面面积矩",
        "           IZ   截面惯性矩",
        "           t    增强型钢宽度",
        "   计算结果：",
        "       横框正应力:" + ShortText(numbers.transomBending.value),
        "       材料抗弯强度设计值: 215 N/mm^2",
        "       校核结果：" + VerdictWord(numbers.transomBending.passes),
        "",
        "       立框正应力：" + ShortText(numbers.mullionBending.value),
        "       材料抗弯强度设计值：215",
        "       校核结果：" + VerdictWord(numbers.mullionBending.passes),
        "",
        "       横框剪应力：" + ShortText(numbers.transomShear.value),
        "       材料抗剪强度设计值：125 N/mm^2",
        "       校核结果：" + VerdictWord(numbers.transomShear.passes),
        "",
        "       立框剪应力：" + ShortText(numbers.mullionShear.value),
        "       材料抗剪强度设计值：125 N/mm^2",
        "       校核结果：" + VerdictWord(numbers.mullionShear.passes),
    };
}

}  // namespace

std::vector<std::string> FullReport(const FullTexts& texts, const FullLoad& load,
                                    const FullNumbers& numbers) {
    Lines lines = LoadLines(texts.base, load);
    KALVANE_ASSERT(lines.size() == kFullBaseLines);
    Append(lines, GlassLines(texts.detail, load, numbers));
    Append(lines, AreaLines(numbers));
    Append(lines, BendingLines(load, numbers));
    Append(lines, TemperatureLines(numbers));
    Append(lines, DeflectionLines(numbers));
    Append(lines, ScrewLines(numbers));
    Append(lines, FrameLines(texts.detail, numbers));
    Append(lines, ForceLines(numbers));
    Append(lines, StressLines(numbers));
    KALVANE_ASSERT(lines.size() == kFullLines);
    return lines;
}

}  // namespace kalvane
