#pragma once

#include <string_view>

#include "numeric/number.h"

namespace kalvane {

// A project window's 门窗编号 is the number of its window type, or for a composite window minus the number
// of its main drawing. The two predicates differ on 0, which neither numbering gives.

/// True where the window is expanded, tallied and copied as a composite: below 0.
inline bool IsComposite(std::string_view typeNumber) {
    return Val(typeNumber) < 0;
}

/// True where the editor for composites opens the window: not above 0.
inline bool OpensAsComposite(std::string_view typeNumber) {
    return Val(typeNumber) <= 0;
}

}  // namespace kalvane
