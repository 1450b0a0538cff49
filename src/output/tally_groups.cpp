#include "output/tally_groups.h"

namespace kalvane {
namespace {

const char* QueryOf(MaterialClass materialClass, TallyView view) {
    const bool isSummary = view == TallyView::Summary;
    switch (materialClass) {
        case MaterialClass::Profile:
            return isSummary ? "Select 规格,sum(长度*数量) from OutXC Group by 规格"
                             : "Select 规格,长度,sum(数量) from OutXC Group by 规格,长度";
        case MaterialClass::Steel:
            return isSummary ? "Select 规格,sum(长度*数量) from OutXg Group by 规格"
                             : "Select 规格,长度,sum(数量) from OutXg Group by 规格,长度";
        case MaterialClass::Fitting:
            return "Select 规格,sum(数量) from OutPJ Group by 规格";
        case MaterialClass::Panel:
            break;
    }
    return isSummary ? "Select 名称,sum(长*宽*数量/1000000) from OutPC Group by 名称"
                     : "Select 名称,长,宽,sum(数量) from OutPC Group by 名称,长,宽";
}

}  // namespace

bool ClassChoice::Has(MaterialClass materialClass) const {
    switch (materialClass) {
        case MaterialClass::Profile:
            return profile;
        case MaterialClass::Steel:
            return steel;
        case MaterialClass::Fitting:
            return fitting;
        case MaterialClass::Panel:
            break;
    }
    return panel;
}

std::vector<TallyGroup> TallyGroups(Connection& connection, MaterialClass materialClass, TallyView view) {
    std::vector<TallyGroup> groups;
    for (Cursor row = connection.OpenCursor(QueryOf(materialClass, view)); !row.Eof(); row.MoveNext()) {
        const int last = row.FieldCount() - 1;
        TallyGroup& group = groups.emplace_back();
        group.materialClass = materialClass;
        group.key = row.Field(0).TextOrEmpty();
        if (last > 1) group.length = row.Field(1).TextOrEmpty();
        if (last > 2) group.width = row.Field(2).TextOrEmpty();
        const FieldValue& sum = row.Field(last);
        group.sum = sum.IsNull() ? 0 : sum.Number();
    }
    return groups;
}

CatalogueTable CatalogueOf(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return {"型材", "型材型号"};
        case MaterialClass::Steel:
            return {"型钢", "型钢规格"};
        case MaterialClass::Fitting:
            return {"配件", "配件规格"};
        case MaterialClass::Panel:
            break;
    }
    return {"玻璃", "玻璃名称"};
}

}  // namespace kalvane
