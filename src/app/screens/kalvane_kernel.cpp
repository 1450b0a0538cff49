#include "app/screens/kalvane_kernel.h"

#include "project/screens/frmMCGCGL.h"
#include "ui/main_frame.h"

namespace kalvane {

void KalvaneKernel::ShowGCGL() {
    if (ActivateScreen(QStringLiteral("frmMCGCGL"))) return;
    (new frmMCGCGL(nullptr))->ShowModeless();
}

}  // namespace kalvane
