#include "optimise/screens/PYH02.h"

#include "optimise/screens/frmYHMain.h"

namespace kalvane {

void PYH02::YH02Show(QWidget* parent) const {
    frmYHMain(parent).exec();
}

}  // namespace kalvane
