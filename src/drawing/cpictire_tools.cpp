#include <array>

#include "drawing/canvas.h"
#include "drawing/cpictire.h"
#include "drawing/drawing_grid.h"
#include "drawing/shapes.h"
#include "drawing/status_bar.h"
#include "drawing/text_form.h"
#include "numeric/assertion.h"

namespace kalvane {

/// A tool that takes a fixed number of points, shows its shape from the last but one on, and ends with the
/// last.
struct CPictire::ToolRule {
    const char* name;
    std::array<const char*, 3> prompts;  ///< before each of the points
    int points;
    void (*paint)(PaintTarget& target, const ToolState& state);
    /// With the last point: stores the item and cancels the tool.
    void (*finish)(CPictire& picture);
};

void CPictire::Step(const ToolRule& rule, ToolOp op, Point at) {
    KALVANE_ASSERT(canvas_ != nullptr && statusBar_ != nullptr);
    if (op == ToolOp::Move) {
        if (!tool_.rubber) return;
        ToolState shown = tool_;
        (rule.points == 2 ? shown.p2 : shown.p3) = at;
        rule.paint(canvas_->Transient(), shown);
        return;
    }
    // A tool that was armed in the place of another finds a step beyond its last: it does nothing then.
    if (tool_.step > rule.points) return;
    if (tool_.step == 0) {
        tool_.curDraw = rule.name;
    } else {
        const std::array<Point*, 3> places = {&tool_.p1, &tool_.p2, &tool_.p3};
        *places[static_cast<std::size_t>(tool_.step - 1)] = at;
    }
    if (tool_.step == rule.points) {
        rule.paint(canvas_->Persistent(), tool_);
        rule.finish(*this);
        return;
    }
    tool_.rubber = tool_.rubber || tool_.step == rule.points - 1;
    statusBar_->ShowPrompt(rule.prompts[static_cast<std::size_t>(tool_.step)]);
    ++tool_.step;
}

void CPictire::CancelTool() {
    KALVANE_ASSERT(canvas_ != nullptr && statusBar_ != nullptr);
    tool_.step = 0;
    tool_.rubber = false;
    tool_.curDraw.clear();
    canvas_->Refresh();
    statusBar_->ShowPrompt("");
}

void CPictire::StepDrawLine(ToolOp op, float x, float y) {
    KALVANE_ASSERT(canvas_ != nullptr && statusBar_ != nullptr);
    const Point at{x, y};
    if (op == ToolOp::Cancel) return CancelTool();
    if (op == ToolOp::Move) {
        if (tool_.rubber) DrawStroke(canvas_->Transient(), tool_.p1, at);
        return;
    }
    if (tool_.step == 0) {
        tool_.curDraw = kLineTool;
        statusBar_->ShowPrompt("请输入第一点");
    } else if (tool_.step == 1) {
        tool_.p1 = at;
        tool_.rubber = true;
        statusBar_->ShowPrompt("请输入下一点");
    } else {
        tool_.p2 = at;
        DrawStroke(canvas_->Persistent(), tool_.p1, tool_.p2);
        AddLine({tool_.p1, tool_.p2});
        tool_.p1 = tool_.p2;
    }
    ++tool_.step;
}

void CPictire::StepDrawRec(ToolOp op, float x, float y) {
    static constexpr ToolRule kRule = {
        kRectangleTool,
        {"请输入第一角点", "请输入下一角点"},
        2,
        [](PaintTarget& target, const ToolState& state) { DrawRectangle(target, state.p1, state.p2); },
        [](CPictire& picture) {
            picture.AddRec({picture.tool_.p1, picture.tool_.p2});
            picture.CancelTool();
        }};
    if (op == ToolOp::Cancel) return CancelTool();
    Step(kRule, op, {x, y});
}

void CPictire::StepDrawDir(ToolOp op, float x, float y) {
    static constexpr ToolRule kRule = {
        kArrowTool,
        {"请输入第一点", "请输入下一点"},
        2,
        [](PaintTarget& target, const ToolState& state) { DrawArrow(target, state.p1, state.p2); },
        [](CPictire& picture) {
            picture.AddDir({picture.tool_.p1, picture.tool_.p2});
            picture.CancelTool();
        }};
    if (op == ToolOp::Cancel) return CancelTool();
    Step(kRule, op, {x, y});
}

void CPictire::StepDrawDiM(ToolOp op, float x, float y) {
    static constexpr ToolRule kRule = {
        kDimensionTool,
        {"请输入标注起点", "请输入标注终点", "请输入标注宽点"},
        3,
        [](PaintTarget& target, const ToolState& state) { DrawDim(target, state.p1, state.p2, state.p3); },
        [](CPictire& picture) {
            picture.AddDim({picture.tool_.p1, picture.tool_.p2, picture.tool_.p3});
            picture.CancelTool();
        }};
    if (op == ToolOp::Cancel) return CancelTool();
    Step(kRule, op, {x, y});
}

void CPictire::StepDrawArc(ToolOp op, float x, float y) {
    static constexpr ToolRule kRule = {
        kArcTool,
        {"请输入弧的起点坐标", "请输入弧的端点坐标", "请输入弧的方向坐标"},
        3,
        [](PaintTarget& target, const ToolState& state) { DrawArc(target, state.p1, state.p2, state.p3); },
        [](CPictire& picture) {
            picture.AddArc({picture.tool_.p1, picture.tool_.p2, picture.tool_.p3});
            picture.CancelTool();
        }};
    if (op == ToolOp::Cancel) return CancelTool();
    Step(kRule, op, {x, y});
}

void CPictire::StepDrawString(ToolOp op, float x, float y) {
    KALVANE_ASSERT(canvas_ != nullptr && statusBar_ != nullptr && textForm_ != nullptr);
    if (op == ToolOp::Cancel) return CancelTool();
    if (op == ToolOp::Move) return;
    if (tool_.step == 0) {
        tool_.curDraw = kStringTool;
        statusBar_->ShowPrompt("输入文字中心坐标");
        ++tool_.step;
    } else if (tool_.step == 1) {
        tool_.p1 = {x, y};
        statusBar_->ShowPrompt("输入文本");
        const std::string text = textForm_->AskText();
        if (!text.empty()) {
            Draw_String(canvas_->Persistent(), x, y, text);
            AddString({tool_.p1, text});
        }
        CancelTool();
    }
}

void CPictire::StepDel(ToolOp op, float x, float y) {
    static constexpr ToolRule kRule = {
        kDeleteTool,
        {"请输入第一角点", "请输入下一角点"},
        2,
        [](PaintTarget& target, const ToolState& state) { DrawRectangle(target, state.p1, state.p2); },
        [](CPictire& picture) { picture.DeleteInBox(); }};
    if (op == ToolOp::Cancel) return CancelDelete();
    const bool firstCorner = op == ToolOp::Point && tool_.step == 1;
    Step(kRule, op, {x, y});
    if (firstCorner) canvas_->SetDashed(true);
}

void CPictire::CancelDelete() {
    CancelTool();
    canvas_->SetDashed(false);
}

void CPictire::DeleteInBox() {
    DelLinesIn(tool_.p1, tool_.p2);
    DelRecsIn(tool_.p1, tool_.p2);
    DelDimsIn(tool_.p1, tool_.p2);
    DelDirsIn(tool_.p1, tool_.p2);
    DelStringsIn(tool_.p1, tool_.p2);
    DelArcsIn(tool_.p1, tool_.p2);
    CancelDelete();
    Repaint();
}

void CPictire::Draw_Gird(std::int16_t columns, std::int16_t rows) {
    KALVANE_ASSERT(canvas_ != nullptr && columns > 0 && rows > 0);
    const float dx = canvas_->Width() / static_cast<float>(columns);
    const float dy = canvas_->Height() / static_cast<float>(rows);
    for (int i = 0; i <= columns; ++i) {
        for (int j = 0; j <= rows; ++j) {
            canvas_->DrawDot(static_cast<float>(i) * dx, static_cast<float>(j) * dy);
        }
    }
}

void CPictire::PicClear() {
    KALVANE_ASSERT(canvas_ != nullptr);
    canvas_->Clear();
    Draw_Gird(kGridColumns, kGridRows);
    ClearData();
}

void CPictire::Repaint() {
    KALVANE_ASSERT(canvas_ != nullptr);
    canvas_->Clear();
    PrintPic(canvas_->Persistent(), kFrame, kFrame);
    Draw_Gird(kGridColumns, kGridRows);
}

}  // namespace kalvane
