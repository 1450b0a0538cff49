#pragma once

#include <string>

#include "drawing/primitives.h"

namespace kalvane {

/// What happened, as it is passed to the tool.
enum class ToolOp {
    Point = 0,   ///< a point is given; at step 0 the tool is armed and the point ignored
    Cancel = 1,  ///< the operator cancels; the point is ignored
    Move = 2     ///< the mouse moved to the point
};

/// Names of the tools, as CPictire::GetCurDraw returns them.
inline constexpr const char* kLineTool = "Line";
inline constexpr const char* kRectangleTool = "Rec";
inline constexpr const char* kArrowTool = "Dir";
inline constexpr const char* kDimensionTool = "Dim";
inline constexpr const char* kStringTool = "String";
inline constexpr const char* kDeleteTool = "Del";
inline constexpr const char* kArcTool = "Arc";

/// The tool in progress. All tools share it: one armed while another is under way takes the arming call for
/// a point of the other's step.
struct ToolState {
    std::string curDraw;  ///< name of the tool; empty when idle
    int step = 0;         ///< clicks so far, the arming among them
    bool rubber = false;  ///< there are points enough for a transient shape
    Point p1;
    Point p2;
    Point p3;
};

}  // namespace kalvane
