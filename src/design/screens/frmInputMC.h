#pragma once

#include "design/window_type_tree.h"
#include "ui/entry_form.h"

namespace kalvane {

class DrawingBox;

/// Name and drawing of a window type. On confirmation the name goes to slot 2 and the drawing's number to the
/// slots 3 and 4.
class frmInputMC final : public EntryForm {
    Q_OBJECT

  public:
    frmInputMC(const QString& title, FieldSlots& slots, QWidget* parent);

    void Show(const WindowType& type);
    /// Shows the form; `save` is handed what was confirmed. False when it was cancelled.
    bool Input(const std::function<void(const WindowType&)>& save);

  private:
    /// Lets the operator choose a drawing of the library.
    void ChooseDrawing();
    void ShowDrawing();

    FieldSlots& slots_;
    DrawingBox* picture_;
};

}  // namespace kalvane
