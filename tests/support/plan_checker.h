#pragma once

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "optimise/plan.h"

namespace kalvane::test {

struct PlanCheck {
    std::string faults;  ///< what is wrong; empty for a good plan
    int bars = 0;
    int overfilled = 0;  ///< bars that the small-pieces rule allows to hold more than they can
};

/// Proves a plan of one material, by its texts alone: every piece demanded is cut, none else, and no bar
/// holds more than its length. The one exception is the linear optimiser's rule for small pieces: when an
/// even sample of `nodes` of the pieces left is shorter than the bar, all of them stand on one last row, with
/// the rest of the sample.
struct PlanChecker {
    int stock;
    int allowance;  ///< of the bar per piece, beyond its length
    int nodes;      ///< 0 where the rule does not hold

    /// `demand`: pieces by length.
    PlanCheck Check(std::map<int, int> demand, const std::vector<PlanRow>& plan) const {
        PlanCheck check;
        const auto fault = [&check](const std::string& text) { check.faults += text + "; "; };
        for (const PlanRow& row : plan) {
            const int bars = std::stoi(row.count);
            const std::map<int, int> left = demand;
            int used = 0;
            const char* text = row.pattern.c_str();
            while (*text != '\0') {
                int length = 0;
                int count = 1;
                int read = 0;
                if (std::sscanf(text, "%d%n", &length, &read) < 1) break;
                text += read;
                if (std::sscanf(text, "*%d%n", &count, &read) == 1) text += read;
                if (*text == '+') ++text;
                used += (length + allowance) * count;
                demand[length] -= count * bars;
            }
            if (*text != '\0' || row.pattern.empty()) fault("no pattern: " + row.pattern);
            if (bars < 1) fault("no bars: " + row.count);
            check.bars += bars;
            if (used + std::stoi(row.rest) == stock && std::stoi(row.rest) >= 0) continue;
            const bool isLast = &row == &plan.back();
            const int sample = SampleOf(left);
            if (isLast && bars == 1 && sample > 0 && sample + std::stoi(row.rest) == stock) {
                if (used > stock) ++check.overfilled;
            } else {
                fault("bar of " + std::to_string(used) + " mm with rest " + row.rest);
            }
        }
        for (const auto& [length, pieces] : demand) {
            if (pieces != 0) fault(std::to_string(pieces) + " of " + std::to_string(length) + " left");
        }
        return check;
    }

  private:
    /// What every n-th piece, in ascending order, takes of a bar, n being the pieces by `nodes`; 0 when no
    /// sample is taken.
    int SampleOf(const std::map<int, int>& pieces) const {
        std::vector<int> sorted;
        for (const auto& [length, count] : pieces)
            sorted.insert(sorted.end(), static_cast<std::size_t>(count), length);
        if (nodes == 0 || sorted.size() <= static_cast<std::size_t>(nodes)) return 0;
        const std::size_t step = sorted.size() / static_cast<std::size_t>(nodes);
        int sum = 0;
        for (int k = 1; k <= nodes; ++k) sum += sorted[step * static_cast<std::size_t>(k) - 1] + allowance;
        return sum;
    }
};

}  // namespace kalvane::test
