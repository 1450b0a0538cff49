#pragma once

#include <QStringList>

#include "warehouse/note_layout.h"

namespace kalvane {

// A line of a note as a row of its list, and back.

QStringList LineColumns(NoteKind kind);
QStringList LineTexts(NoteKind kind, const NoteLine& line);
NoteLine LineOf(NoteKind kind, const QStringList& texts);

}  // namespace kalvane
