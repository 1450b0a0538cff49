#pragma once

#include <string>

#include "warehouse/note_layout.h"

class QWidget;

namespace kalvane {

/// Shows a stored note over `parent`, modal, of which nothing can be changed. Throws StoreError when there is
/// no note of that number.
void PreviewNote(NoteKind kind, const std::string& number, QWidget* parent);

}  // namespace kalvane
