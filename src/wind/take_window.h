#pragma once

#include <string>
#include <vector>

#include "wind/full_form.h"
#include "wind/project_window.h"

namespace kalvane {

/// What the operator should know about a window that was taken over: sentences.
using TakeNotes = std::vector<std::string>;

/// Fills the boxes of the window from a project; what the project does not tell is emptied, so that nothing
/// of another window stays. The site is left as it is.
///
/// The glass is the largest pane that fits into the sash; a top light is known by panes that do not, and its
/// size is that of the labels nearest to its pane.
TakeNotes TakeSlidingWindow(FormTexts& texts, const ProjectWindow& window);

/// The same for the full check. The glass is the largest pane; the row of the edge ratio is the one nearest
/// to it.
TakeNotes TakeFullWindow(FullTexts& texts, const ProjectWindow& window);

}  // namespace kalvane
