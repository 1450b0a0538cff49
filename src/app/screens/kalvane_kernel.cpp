#include "app/screens/kalvane_kernel.h"

#include "backup/screens/frmTools.h"
#include "project/screens/frmMCGCGL.h"
#include "ui/main_frame.h"

namespace kalvane {

void KalvaneKernel::ShowGCGL() {
    if (ActivateScreen(QStringLiteral("frmMCGCGL"))) return;
    (new frmMCGCGL(nullptr))->ShowModeless();
}

void KalvaneKernel::ShowTools(QWidget* parent) {
    frmTools(parent).exec();
}

}  // namespace kalvane
