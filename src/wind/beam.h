#pragma once

#include <vector>

namespace kalvane {

/// A load along a stretch of a beam: from q1 N/mm at x1 to q2 N/mm at x2, straight between. x in mm.
struct BeamLoad {
    double x1 = 0;
    double q1 = 0;
    double x2 = 0;
    double q2 = 0;
};

/// Adds what a pane of `width` × `depth` mm under `pressure` N/mm² hands to its edge of `width`, which begins
/// at `start` on the beam: the part of the pane that is nearest to that edge, so that lines of 45° from the
/// corners divide it. That is a trapezoid, or a triangle when the pane is at least as deep as wide.
void AddEdgeLoad(std::vector<BeamLoad>& loads, double start, double width, double depth, double pressure);

/// Deflection in the middle of a beam on two supports, mm; under loads that are symmetric to the middle the
/// largest one. `span` in mm, `ei` in N·mm². By the influence line x(3L² − 4x²)/48EI.
double MidspanDeflection(double span, const std::vector<BeamLoad>& loads, double ei);

}  // namespace kalvane
