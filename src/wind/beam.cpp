#include "wind/beam.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kalvane {
namespace {

/// Deflection in the middle under a load of 1 at `x`, times EI.
double Influence(double span, double x) {
    const double near = std::min(x, span - x);
    return near * (3 * span * span - 4 * near * near) / 48;
}

/// Gauss's rule of three points is exact to the fifth power; load by influence is one of the fourth.
double Integral(double span, const BeamLoad& load, double from, double to) {
    if (!(to > from)) return 0;
    struct Point {
        double place;
        double weight;
    };
    const double root = std::sqrt(0.6);
    const std::array<Point, 3> points = {{{-root, 5.0 / 9}, {0, 8.0 / 9}, {root, 5.0 / 9}}};
    double sum = 0;
    for (const Point& point : points) {
        const double x = (from + to) / 2 + point.place * (to - from) / 2;
        const double q = load.q1 + (load.q2 - load.q1) * (x - load.x1) / (load.x2 - load.x1);
        sum += point.weight * q * Influence(span, x);
    }
    return sum * (to - from) / 2;
}

}  // namespace

void AddEdgeLoad(std::vector<BeamLoad>& loads, double start, double width, double depth, double pressure) {
    const double ramp = std::min(width, depth) / 2;
    const double peak = pressure * ramp;
    const double end = start + width;
    loads.push_back({start, 0, start + ramp, peak});
    loads.push_back({start + ramp, peak, end - ramp, peak});
    loads.push_back({end - ramp, peak, end, 0});
}

double MidspanDeflection(double span, const std::vector<BeamLoad>& loads, double ei) {
    const double middle = span / 2;
    double sum = 0;
    for (const BeamLoad& load : loads) {
        sum += Integral(span, load, load.x1, std::min(load.x2, middle));
        sum += Integral(span, load, std::max(load.x1, middle), load.x2);
    }
    return sum / ei;
}

}  // namespace kalvane
