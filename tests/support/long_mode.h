#pragma once

#include <cstdlib>

namespace kalvane::test {

/// True in the long mode (./test long): tests that throw dice throw more of them, and new ones.
inline bool IsLongMode() {
    return std::getenv("KALVANE_LONG_TESTS") != nullptr;
}

}  // namespace kalvane::test
