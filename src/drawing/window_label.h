#pragma once

#include <string>

namespace kalvane {

/// The value of a label of a project window, at the label's position in drawing units.
struct WindowLabel {
    double px = 0;
    double py = 0;
    std::string value;
};

}  // namespace kalvane
