#pragma once

#include "ui/screen.h"

namespace kalvane {

class NodeTree;
class TypePicture;

/// The choice of a window type whose formulas are to be copied. Its number comes back in slot 0.
class frmCopyGS final : public Screen {
    Q_OBJECT

  public:
    explicit frmCopyGS(QWidget* parent);

  private:
    void ShowSelected();
    /// Only a type ends the choice.
    void Confirm();

    NodeTree* tvw_;
    TypePicture* picture_;
};

}  // namespace kalvane
