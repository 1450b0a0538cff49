#pragma once

#include <string>

#include "warehouse/note_layout.h"

class QComboBox;
class QWidget;

namespace kalvane {

/// CmbPaper: the paper that notes are printed on, as it was chosen last.
QComboBox* MakePaperBox(QWidget* screen);

/// Shows the report of a stored note on that paper.
void PrintNote(QWidget* screen, NoteKind kind, const std::string& number, const QComboBox& paper);

}  // namespace kalvane
