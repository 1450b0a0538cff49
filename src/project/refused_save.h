#pragma once

#include <string>

#include "numeric/error.h"

namespace kalvane {

/// Throws the refusal of a save that had deleted or written rows before, with what is `stored` now and how to
/// go on. A ColumnError stays one.
[[noreturn]] inline void ThrowRefusal(const StoreError& refusal, const std::string& stored) {
    const std::string text = std::string(refusal.what()) + "\n\n" + stored +
                             "\n填写的内容都还在界面上，改正后再保存一次就会存储。";
    if (const auto* column = dynamic_cast<const ColumnError*>(&refusal)) {
        throw ColumnError(column->Column(), text);
    }
    throw StoreError(text);
}

}  // namespace kalvane
