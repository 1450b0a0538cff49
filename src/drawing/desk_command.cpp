#include "drawing/desk_command.h"

#include "drawing/drawing_tool.h"

namespace kalvane {
namespace {

struct Typed {
    std::string_view text;
    DeskCommand command;
};

constexpr Typed kTyped[] = {
    {"L", DeskCommand::Line},
    {"R", DeskCommand::Rectangle},
    {"D", DeskCommand::Dimension},
    {"A", DeskCommand::Arrow},
    {"T", DeskCommand::Text},
    {"Q", DeskCommand::Quit},
    {"E", DeskCommand::Delete},
    {"OPEN", DeskCommand::OpenFromLibrary},
    {"SAVE", DeskCommand::SaveToLibrary},
    {"REDRAW", DeskCommand::Redraw},
    {"C", DeskCommand::New},
    {"ESC", DeskCommand::Cancel},
    {"PRINT", DeskCommand::Print},
};

}  // namespace

std::optional<DeskCommand> FindDeskCommand(std::string_view text) {
    for (const Typed& typed : kTyped) {
        if (typed.text == text) return typed.command;
    }
    return std::nullopt;
}

std::string_view ToolOfCommand(DeskCommand command) {
    switch (command) {
        case DeskCommand::Line:
            return kLineTool;
        case DeskCommand::Arrow:
            return kArrowTool;
        case DeskCommand::Rectangle:
            return kRectangleTool;
        case DeskCommand::Dimension:
            return kDimensionTool;
        case DeskCommand::Text:
            return kStringTool;
        case DeskCommand::Arc:
            return kArcTool;
        case DeskCommand::Delete:
            return kDeleteTool;
        default:
            return {};
    }
}

}  // namespace kalvane
