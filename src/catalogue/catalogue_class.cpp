#include "catalogue/catalogue_class.h"

namespace kalvane {
namespace {

constexpr bool kText = true;
constexpr bool kAnyKey = false;

constexpr MaterialColumn kProfiles[] = {
    {"型材名称", "型材名称", "型材名称", "", kText, kAnyKey},
    {"型材型号", "型材规格", "型材型号", "", kText, kAnyKey},
    {"型材长度", "型材长度mm", "型材长度mm", "6000"},
    {"型材厚度", "型材厚度mm", "型材厚度mm", "2"},
    {"型材颜色", "型材颜色", "型材颜色", "-", kText, kAnyKey},
    {"型材线密度", "型材线密度", "型材线密度(KG/M)"},
    {"型材吨价格", "型材吨价格(元)", "型材吨价格(元)"},
};
constexpr MaterialColumn kSteels[] = {
    {"型钢名称", "型钢名称", "型钢名称", "", kText, kAnyKey},
    {"型钢规格", "型钢规格", "型钢型号", "", kText, kAnyKey},
    {"型钢长度", "型钢长度mm", "型钢长度mm", "6000"},
    {"型钢厚度", "型钢厚度mm", "型钢厚度mm", "2", kText},
    {"型钢颜色", "型钢颜色", "型钢颜色", "-", kText, kAnyKey},
    {"型钢线密度", "型钢线密度", "型钢线密度(KG/M)"},
    {"型钢吨价格", "型钢吨价格(元)", "型钢吨价格(元)"},
};
constexpr MaterialColumn kPanels[] = {
    {"玻璃名称", "板材名称", "板材名称", "", kText, kAnyKey},
    {"玻璃长", "板材长mm", "板材长(mm)", "2000"},
    {"玻璃宽", "板材宽mm", "板材宽(mm)", "2000"},
    {"玻璃厚度", "板材厚度mm", "板材厚度(mm)", "5"},
    {"玻璃颜色", "板材颜色", "板材颜色", "-", kText, kAnyKey},
    {"玻璃平方单价", "板材平方单价", "平方单价(元)"},
};
constexpr MaterialColumn kFittings[] = {
    {"配件名称", "配件名称", "配件名称", "", kText, kAnyKey},
    {"配件规格", "配件规格", "配件规格", "", kText, kAnyKey},
    {"配件单位", "配件单位", "配件单位", "只", kText, kAnyKey},
    {"配件单价", "配件单价", "配件单价(元)"},
};

constexpr CatalogueClass kClasses[] = {
    {kSeriesKind, "型材", "型材", "系列编号", "frmInputXCXG", "窗型材", "规格", 1, 6, "型材吨价格",
     kProfiles},
    {"2", "型钢", "型钢", "厂家编号", "frmInputXCXG", "窗型钢", "规格", 1, 6, "型钢吨价格", kSteels},
    {"3", "板材", "玻璃", "厂家编号", "frmInputPC", "窗板材", "名称", 0, 5, "板材平方价格", kPanels},
    {"4", "配件", "配件", "厂家编号", "frmInputPJ", "窗配件", "规格", 1, 3, nullptr, kFittings},
};

}  // namespace

std::span<const CatalogueClass> CatalogueClasses() {
    return kClasses;
}

const CatalogueClass* ClassOfKind(std::string_view kind) {
    for (const CatalogueClass& each : kClasses) {
        if (each.kind == kind) return &each;
    }
    return nullptr;
}

}  // namespace kalvane
