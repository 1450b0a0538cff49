#include "design/catalogue_codes.h"

namespace kalvane {
namespace {

const char* SelectCodes(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return "Select 型材型号 from 型材";
        case MaterialClass::Steel:
            return "Select 型钢规格 from 型钢";
        case MaterialClass::Panel:
            return "Select 玻璃名称 from 玻璃";
        case MaterialClass::Fitting:
            break;
    }
    return "Select 配件规格 from 配件";
}

}  // namespace

CatalogueCodes::CatalogueCodes(Connection& connection) {
    for (const MaterialClass materialClass : kListClasses) {
        std::set<std::string>& codes = codes_[static_cast<std::size_t>(materialClass)];
        Cursor row = connection.OpenCursor(SelectCodes(materialClass));
        for (; !row.Eof(); row.MoveNext()) codes.insert(row.Field(0).TextOrEmpty());
    }
}

bool CatalogueCodes::Has(MaterialClass materialClass, const std::string& code) const {
    return codes_[static_cast<std::size_t>(materialClass)].contains(code);
}

}  // namespace kalvane
