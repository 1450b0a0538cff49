#include "optimise/option_form.h"

#include <cmath>
#include <optional>

#include "numeric/error.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

constexpr const char* kBadValue = "数据不合法";

constexpr std::size_t Index(OptionField field) {
    return static_cast<std::size_t>(field);
}

void Convert(OptimiseSettings& settings, OptionField field, const std::string& text) {
    switch (field) {
        case OptionField::CLC:
            settings.CLC = RoundToInt16(Val(text));
            break;
        case OptionField::LTC:
            settings.LTC = RoundToInt16(Val(text));
            break;
        case OptionField::CKK:
            settings.CKK = FloorToInt16(ParseNumber(text));
            break;
        case OptionField::COUNT:
            settings.COUNT = RoundToInt32(Val(text));
            break;
        case OptionField::YHBL:
            settings.YHBL = NarrowToFloat(Val(text));
            break;
        case OptionField::NODES:
            settings.NODES = RoundToInt16(Val(text));
            break;
    }
}

}  // namespace

OptionTexts OptionTextsOf(const OptimiseSettings& settings) {
    return {ShortText(std::int64_t{settings.CLC}),
            ShortText(std::int64_t{settings.LTC}),
            ShortText(std::int64_t{settings.CKK}),
            ShortText(std::int64_t{settings.COUNT}),
            ShortText(settings.YHBL),
            ShortText(std::int64_t{settings.NODES})};
}

std::variant<OptimiseSettings, OptionFailure> AcceptOptions(const OptionTexts& texts) {
    for (const OptionField field :
         {OptionField::CLC, OptionField::LTC, OptionField::CKK, OptionField::COUNT, OptionField::YHBL}) {
        if (!IsNumeric(texts[Index(field)])) return OptionFailure{field, kBadValue};
    }
    OptimiseSettings settings;
    OptionField field = OptionField::COUNT;
    try {
        if (std::trunc(ParseNumber(texts[Index(field)])) > kMostPieces) {
            return OptionFailure{field, "数据值不能大于" + std::to_string(kMostPieces)};
        }
        for (int i = 0; i < kOptionFieldCount; ++i) {
            field = static_cast<OptionField>(i);
            Convert(settings, field, texts[Index(field)]);
        }
    } catch (const NumericError&) {
        return OptionFailure{field, kBadValue};
    }
    return settings;
}

}  // namespace kalvane
