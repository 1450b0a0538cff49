#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "drawing/cpictire.h"
#include "drawing/desk_command.h"
#include "drawing/drawing_grid.h"
#include "drawing/drawing_history.h"
#include "drawing/drawing_identity.h"
#include "platform/recovery_shelf.h"

namespace kalvane {

class DeskScreen;

/// The drawing desk: the drawing with its tools, the input from mouse and command line, undo
/// through what was done, and the recovery file. Points are in drawing units.
///
/// Every routine may throw what the drawing, a file or the store throws; what was done until then stands and
/// can be undone.
class DrawingDesk {
  public:
    /// The references must outlive the desk. Recovery files lie in `folder`.
    DrawingDesk(Canvas& canvas, StatusBar& statusBar, TextForm& textForm, DeskScreen& screen, Notice& notice,
                std::filesystem::path folder);

    /// To be called once, when the screen is first shown.
    void ShowGrid() { picture_.Draw_Gird(kGridColumns, kGridRows); }

    // What the operator does. Points of the mouse snap to the grid, and the cross-hair follows.
    void PressMouse(bool leftButton, Point at);
    void MoveMouse(Point at);
    /// A typed command or point (DrawingGrid::TypedPoint), in small or capital letters; any other text does
    /// nothing. A typed point is a press of the left button that does not snap.
    void RunCommand(std::string_view text);
    /// A tool command arms its tool: the call of its step 0, unless another tool is under way, which then
    /// takes it for the point (0, 0).
    void Run(DeskCommand command);

    /// Reads a drawing file (CPictire::Open_File) and repaints.
    void OpenFile(const std::filesystem::path& path);
    void SaveFile(const std::filesystem::path& path);
    /// What stands on the desk gives way to what `read` puts there, as one step that can be undone.
    void Replace(const std::function<void(CPictire&)>& read);

    /// Adds a drawing of the library to what is held, and repaints.
    void OpenDrawing(Connection& connection, const std::string& number, const std::string& name);
    /// True when the drawing has a number in the library, where it can be saved without asking.
    bool HasPlace(Connection& connection) const;
    void SaveDrawing(Connection& connection);
    /// Saves under a new number.
    void SaveNewDrawing(Connection& connection, const std::string& number, const std::string& name);
    /// What a cancelled choice of a number leaves: no number and no name.
    void LeaveUnnamed();

    /// Takes back the last gesture; while one is under way and has made nothing yet, only that one.
    void Undo();
    void Redo();
    bool CanUndo() const;
    bool CanRedo() const { return history_.CanRedo(); }

    /// True while an unsaved drawing of an earlier desk waits for Recover.
    bool OffersRecovery() const { return shelf_.Offers(); }
    /// Puts the latest unsaved drawing on the desk, in place of what is there.
    void Recover();

    const CPictire& Picture() const { return picture_; }
    const DrawingIdentity& Identity() const { return identity_; }

  private:
    /// The one way in which a point, clicked or typed, reaches the tool in progress.
    void GivePoint(ToolOp op, Point at);
    void StepTool(std::string_view tool, ToolOp op, Point at);
    Point Snap(Point at);
    void Cancel();
    bool IsMidway() const;
    void StartNew();

    /// Runs what may change the drawing and notes the change. `replaces` when another drawing takes the place
    /// of this one.
    void Change(const std::function<void()>& gesture, bool replaces = false);
    void GoTo(const DrawingItems& items, const DrawingIdentity& identity);
    void SetIdentity(DrawingIdentity identity);
    void SetSaved();
    void UpdateRecovery(bool replaces);

    Canvas& canvas_;
    StatusBar& statusBar_;
    DeskScreen& screen_;
    CPictire picture_;
    DrawingGrid grid_;
    DrawingIdentity identity_;
    DrawingHistory history_;
    RecoveryShelf shelf_;
    Point last_;  ///< of the last press or typed point
    bool recoveryFailed_ = false;
};

}  // namespace kalvane
