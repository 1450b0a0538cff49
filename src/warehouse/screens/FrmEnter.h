#pragma once

#include "warehouse/screens/note_screen.h"

namespace kalvane {

/// A goods-in note.
class FrmEnter : public NoteScreen {
    Q_OBJECT

  public:
    FrmEnter(const std::string& number, QWidget* parent);

  private:
    void Add();
    void Edit();
};

}  // namespace kalvane
