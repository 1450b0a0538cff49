#pragma once

#include <sstream>

#include "drawing/canvas.h"
#include "drawing/desk_screen.h"
#include "drawing/drawing_desk.h"
#include "drawing/recorders.h"
#include "drawing/status_bar.h"
#include "drawing/text_form.h"
#include "support/temp_folder.h"

namespace kalvane::test {

/// A canvas that keeps what is painted on its layers.
class RecordingCanvas : public Canvas {
  public:
    float Width() const override { return kFrameWidth; }
    float Height() const override { return kFrameHeight; }
    PaintTarget& Persistent() override { return persistent; }
    PaintTarget& Transient() override {
        Refresh();
        return transient;
    }
    void DrawDot(float x, float y) override { dots.push_back({x, y}); }
    void Refresh() override { transient.painted.clear(); }
    void Clear() override {
        Refresh();
        persistent.painted.clear();
        dots.clear();
    }
    void SetDashed(bool isDashed) override { dashed = isDashed; }
    void ShowCrossHair(Point at) override { crossHair = at; }

    RecordingTarget persistent;
    RecordingTarget transient;
    std::vector<Point> dots;
    Point crossHair;
    bool dashed = false;
};

/// A desk without a screen.
struct TestDesk : StatusBar, TextForm, DeskScreen {
    explicit TestDesk(std::filesystem::path folder)
        : desk(canvas, *this, *this, *this, notice, std::move(folder)) {}

    void ShowPrompt(const std::string& text) override { prompt = text; }
    void ShowCoordinates(const std::string& text) override { coordinates = text; }
    std::string AskText() override { return typedText; }
    void SetTitle(const std::string& text) override { title = text; }
    void ChooseDrawing() override { asked += "open "; }
    void SaveDrawing() override { asked += "save "; }
    void PrintDrawing() override { asked += "print "; }
    void Quit() override { asked += "quit "; }

    /// Runs commands one after the other, separated by blanks; "undo" and "redo" as their buttons do.
    void Run(const std::string& commands) {
        std::istringstream words(commands);
        for (std::string word; std::getline(words, word, ' ');) {
            word == "undo" ? desk.Undo() : word == "redo" ? desk.Redo() : desk.RunCommand(word);
        }
    }
    std::string Items() const { return Describe(desk.Picture()); }

    RecordingCanvas canvas;
    RecordingNotice notice;
    std::string prompt, coordinates, title, typedText, asked;
    DrawingDesk desk;
};

}  // namespace kalvane::test
