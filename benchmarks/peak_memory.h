#pragma once

#include <fstream>
#include <string>

namespace kalvane::bench {

/// Peak memory of this process in MiB since it was last reset.
inline double PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
    }
    return 0;
}

inline void ResetPeakMemory() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

}  // namespace kalvane::bench
