#pragma once

#include <cstdio>
#include <cstdlib>

/// A programming error ends the program, in release builds too: going on could damage an order.
#define KALVANE_ASSERT(condition)                                                                  \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: assertion failed: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
