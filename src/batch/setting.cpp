#include "batch/setting.h"

#include "numeric/error.h"
#include "numeric/text.h"

namespace kalvane {

Setting ParsedSetting(const std::string& word) {
    std::string_view rest = word;
    const std::string_view name = TakeUpTo(rest, "=");
    if (name.size() == word.size()) throw Error("“" + word + "”应写成 名称=值。");
    return {std::string(name), FromOneLine(rest)};
}

}  // namespace kalvane
