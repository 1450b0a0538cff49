#include "design/catalogue_codes.h"

#include "catalogue/catalogue_class.h"

namespace kalvane {
CatalogueCodes::CatalogueCodes(Connection& connection) {
    for (const CatalogueClass& materials : CatalogueClasses()) {
        for (const MaterialClass each : kListClasses) {
            if (std::string_view(materials.formulaTable) != FormulaTableOf(each).name) continue;
            std::set<std::string>& codes = codes_[static_cast<std::size_t>(each)];
            Cursor row = connection.OpenCursor(
                std::string("Select ") + materials.columns[materials.code].name + " from " + materials.table);
            for (; !row.Eof(); row.MoveNext()) codes.insert(row.Field(0).TextOrEmpty());
        }
    }
}

bool CatalogueCodes::Has(MaterialClass materialClass, const std::string& code) const {
    return codes_[static_cast<std::size_t>(materialClass)].contains(code);
}

}  // namespace kalvane
