#pragma once

#include "warehouse/screens/note_screen.h"

namespace kalvane {

/// A goods-out note. Its lines are picked from the stock.
class FrmPost : public NoteScreen {
    Q_OBJECT

  public:
    FrmPost(const std::string& number, QWidget* parent);
};

}  // namespace kalvane
