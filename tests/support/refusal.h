#pragma once

#include <string>

#include "numeric/error.h"

namespace kalvane::test {

/// What the failure of `work` says; empty when it did not fail.
template <typename Work>
std::string Refusal(Work work) {
    try {
        work();
        return "";
    } catch (const Error& failure) {
        return failure.what();
    }
}

}  // namespace kalvane::test
