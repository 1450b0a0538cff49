#pragma once

#include <string>

#include "drawing/drawing_items.h"

namespace kalvane {

/// Which drawing is on the desk, apart from its shapes.
struct DrawingIdentity {
    bool inLibrary = false;  ///< the drawing has a number in the library
    std::string number;
    std::string name;
    std::string title;   ///< of the screen
    DrawingItems saved;  ///< what the library or a file is known to hold of it

    friend bool operator==(const DrawingIdentity&, const DrawingIdentity&) = default;
};

}  // namespace kalvane
