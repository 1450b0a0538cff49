#pragma once

#include <optional>
#include <string_view>

namespace kalvane {

/// The commands of the drawing desk: its buttons, most of which can be typed as well.
enum class DeskCommand {
    Line,
    Arrow,
    Rectangle,
    Dimension,
    Text,
    Arc,
    Delete,
    New,
    Redraw,
    Print,
    SaveToLibrary,
    OpenFromLibrary,
    Cancel,
    Quit
};

/// The command that a typed text names; the text is trimmed and in capitals.
std::optional<DeskCommand> FindDeskCommand(std::string_view text);

/// Name of the tool (drawing_tool.h) that a command arms; empty for one that arms none.
std::string_view ToolOfCommand(DeskCommand command);

}  // namespace kalvane
