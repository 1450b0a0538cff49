#pragma once

#include <string>

namespace kalvane {

inline std::string VerdictWord(bool passes) {
    return passes ? "合格" : "不合格";
}

}  // namespace kalvane
