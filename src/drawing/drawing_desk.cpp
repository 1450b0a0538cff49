#include "drawing/drawing_desk.h"

#include <exception>
#include <utility>

#include "drawing/canvas.h"
#include "drawing/desk_screen.h"
#include "drawing/drawing_library.h"
#include "drawing/status_bar.h"
#include "drawing/unsaved_drawing.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr std::string_view kNewTitle = "文件->新建";
constexpr std::string_view kTitleStart = "文件->";

struct ToolStep {
    std::string_view tool;
    void (CPictire::*step)(ToolOp, float, float);
};

constexpr ToolStep kToolSteps[] = {
    {kLineTool, &CPictire::StepDrawLine},     {kRectangleTool, &CPictire::StepDrawRec},
    {kArrowTool, &CPictire::StepDrawDir},     {kDimensionTool, &CPictire::StepDrawDiM},
    {kStringTool, &CPictire::StepDrawString}, {kDeleteTool, &CPictire::StepDel},
    {kArcTool, &CPictire::StepDrawArc},
};

DrawingIdentity Unnamed(std::string_view title, DrawingItems saved = {}) {
    return {false, "", "", std::string(title), std::move(saved)};
}

DrawingIdentity Named(const std::string& number, const std::string& name, DrawingItems saved = {}) {
    return {true, number, name, std::string(kTitleStart) + name, std::move(saved)};
}

/// A number as the coordinate panel shows it, with the place of the sign in front.
std::string Plain(float value) {
    return (value < 0 ? "" : " ") + ShortText(value);
}

}  // namespace

DrawingDesk::DrawingDesk(Canvas& canvas, StatusBar& statusBar, TextForm& textForm, DeskScreen& screen,
                         Notice& notice, std::filesystem::path folder)
    : canvas_(canvas),
      statusBar_(statusBar),
      screen_(screen),
      picture_(notice),
      grid_(canvas.Width(), canvas.Height()),
      shelf_(std::move(folder), "unsaved-drawing-") {
    picture_.SetPicture(canvas);
    picture_.SetStatu(statusBar);
    picture_.SetTextForm(textForm);
    identity_.title = "绘图";
}

void DrawingDesk::PressMouse(bool leftButton, Point at) {
    GivePoint(leftButton ? ToolOp::Point : ToolOp::Cancel, Snap(at));
}

void DrawingDesk::MoveMouse(Point at) {
    const Point snapped = Snap(at);
    statusBar_.ShowCoordinates(Plain(snapped.x) + "," + Plain(snapped.y));
    StepTool(picture_.GetCurDraw(), ToolOp::Move, snapped);
}

void DrawingDesk::RunCommand(std::string_view text) {
    const std::string typed = UpperCase(Trim(text));
    if (typed.empty()) return;
    if (const auto command = FindDeskCommand(typed)) {
        Run(*command);
    } else if (const auto point = grid_.TypedPoint(typed, last_)) {
        GivePoint(ToolOp::Point, *point);
    }
}

void DrawingDesk::Run(DeskCommand command) {
    switch (command) {
        case DeskCommand::New:
            return StartNew();
        case DeskCommand::Redraw:
            return picture_.Repaint();
        case DeskCommand::Cancel:
            return PressMouse(false, {0, 0});
        case DeskCommand::Print:
            return screen_.PrintDrawing();
        case DeskCommand::SaveToLibrary:
            return screen_.SaveDrawing();
        case DeskCommand::OpenFromLibrary:
            return screen_.ChooseDrawing();
        case DeskCommand::Quit:
            return screen_.Quit();
        default:
            Change([&] { StepTool(ToolOfCommand(command), ToolOp::Point, {0, 0}); });
    }
}

Point DrawingDesk::Snap(Point at) {
    const Point snapped = grid_.Snap(at);
    canvas_.ShowCrossHair(snapped);
    return snapped;
}

void DrawingDesk::GivePoint(ToolOp op, Point at) {
    last_ = at;
    Change([&] { StepTool(picture_.GetCurDraw(), op, at); });
}

void DrawingDesk::StepTool(std::string_view tool, ToolOp op, Point at) {
    for (const ToolStep& known : kToolSteps) {
        if (known.tool == tool) return (picture_.*known.step)(op, at.x, at.y);
    }
}

void DrawingDesk::Cancel() {
    StepTool(picture_.GetCurDraw(), ToolOp::Cancel, {});
}

bool DrawingDesk::IsMidway() const {
    const ToolState& tool = picture_.Tool();
    const bool hasLines = tool.curDraw == kLineTool && tool.step > 2;
    return tool.step > 1 && !hasLines;
}

void DrawingDesk::StartNew() {
    Change(
        [&] {
            picture_.PicClear();
            SetIdentity(Unnamed(kNewTitle));
        },
        true);
}

void DrawingDesk::OpenFile(const std::filesystem::path& path) {
    Replace([&](CPictire& picture) { picture.Open_File(path); });
}

void DrawingDesk::Replace(const std::function<void(CPictire&)>& read) {
    Change(
        [&] {
            read(picture_);
            picture_.Repaint();
            // Arcs were on the desk before: with them the drawing is in no file.
            identity_.saved = picture_.Arcs().Empty() ? picture_.Items() : DrawingItems();
        },
        true);
}

void DrawingDesk::SaveFile(const std::filesystem::path& path) {
    picture_.SavePicture(path);
    if (picture_.Arcs().Empty()) SetSaved();  // they are not in the file
}

void DrawingDesk::OpenDrawing(Connection& connection, const std::string& number, const std::string& name) {
    Change([&] {
        const bool alone = picture_.Items().Empty();
        picture_.OpenFileEX(connection, number);
        SetIdentity(Named(number, name, alone ? picture_.Items() : identity_.saved));
        picture_.Repaint();
    });
}

bool DrawingDesk::HasPlace(Connection& connection) const {
    return identity_.inLibrary && DrawingExists(connection, identity_.number);
}

void DrawingDesk::SaveDrawing(Connection& connection) {
    picture_.SaveFileEx(connection, identity_.number, identity_.name);
    SetIdentity(Named(identity_.number, identity_.name));
    SetSaved();
}

void DrawingDesk::SaveNewDrawing(Connection& connection, const std::string& number, const std::string& name) {
    kalvane::SaveNewDrawing(connection, number, name, picture_);
    SetIdentity(Named(number, name));
    SetSaved();
}

void DrawingDesk::LeaveUnnamed() {
    SetIdentity(Unnamed(kTitleStart, identity_.saved));
}

void DrawingDesk::Undo() {
    const bool midway = IsMidway();
    Cancel();
    if (midway || !history_.CanUndo()) return;
    DrawingItems items = picture_.Items();
    DrawingIdentity identity = identity_;
    history_.Undo(items, identity);
    GoTo(items, identity);
}

void DrawingDesk::Redo() {
    Cancel();
    if (!history_.CanRedo()) return;
    DrawingItems items = picture_.Items();
    DrawingIdentity identity = identity_;
    history_.Redo(items, identity);
    GoTo(items, identity);
}

bool DrawingDesk::CanUndo() const {
    return history_.CanUndo() || IsMidway();
}

void DrawingDesk::GoTo(const DrawingItems& items, const DrawingIdentity& identity) {
    const bool replaces = !(identity == identity_);
    picture_.SetItems(items);
    picture_.Repaint();
    SetIdentity(identity);
    UpdateRecovery(replaces);
}

void DrawingDesk::Recover() {
    Change([&] {
        const UnsavedDrawing drawing = ReadRecoveryText(shelf_.Take());
        picture_.SetItems(drawing.items);
        picture_.Repaint();
        SetIdentity(drawing.number.empty() ? Unnamed(kNewTitle) : Named(drawing.number, drawing.name));
    });
}

void DrawingDesk::Change(const std::function<void()>& gesture, bool replaces) {
    DeskState before{picture_.Items(), identity_};
    std::exception_ptr failure;
    try {
        gesture();
    } catch (...) {
        failure = std::current_exception();
        if (replaces) picture_.Repaint();  // with what was read until then
    }
    if (picture_.Items() != before.items || !(identity_ == *before.identity)) {
        if (identity_ == *before.identity) before.identity.reset();
        history_.Add(std::move(before));
        UpdateRecovery(replaces);
    }
    if (failure) std::rethrow_exception(failure);
}

void DrawingDesk::SetIdentity(DrawingIdentity identity) {
    identity_ = std::move(identity);
    screen_.SetTitle(identity_.title);
}

void DrawingDesk::SetSaved() {
    identity_.saved = picture_.Items();
    UpdateRecovery(false);
}

void DrawingDesk::UpdateRecovery(bool replaces) {
    if (replaces) shelf_.PutAside();
    const DrawingItems items = picture_.Items();
    if (items.Empty() || items == identity_.saved) return shelf_.Discard();
    try {
        shelf_.Keep(RecoveryText({identity_.inLibrary ? identity_.number : std::string(),
                                  identity_.inLibrary ? identity_.name : std::string(), items}));
        recoveryFailed_ = false;
    } catch (const FileError& error) {
        // Drawing continues; the failure is reported once.
        if (!std::exchange(recoveryFailed_, true)) {
            statusBar_.ShowPrompt(std::string("未保存的图不能写入恢复文件：") + error.what());
        }
    }
}

}  // namespace kalvane
