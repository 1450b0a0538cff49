#include "app/screens/kalvane_kernel.h"

#include "app/rights.h"
#include "backup/screens/frmTools.h"
#include "catalogue/screens/frmDatabase.h"
#include "design/screens/FrmDesign.h"
#include "design/screens/FrmMCGS.h"
#include "optimise/project_material.h"
#include "optimise/screens/frmCreate02.h"
#include "output/screens/FrmGJB.h"
#include "output/screens/frmTJJS.h"
#include "project/screens/frmMCGCGL.h"
#include "session/app_state.h"
#include "ui/dialogs.h"
#include "ui/main_frame.h"

namespace kalvane {
namespace {

void DesignWindowType(QWidget* parent, const std::string& typeId) {
    if (!IsGranted(App().userAuth, Right::Design)) {
        return Tell(parent, QStringLiteral("您没有“窗型设计”的权限。"));
    }
    RecoveryShelf shelf(App().folder, "unsaved-formulas-");
    shelf.PutAside();
    FrmMCGS(typeId, shelf, parent).exec();
}

}  // namespace

ProjectRoads KalvaneKernel::Roads() {
    ProjectRoads roads;
    roads.sheets = [](QWidget* parent, const Project& project, const std::string& windowNumber) {
        ShowSheets(project.number, windowNumber, parent);
    };
    roads.optimise = [](QWidget* parent, const Project& project) {
        App().YHScheme = 0;
        App().optimiseProjectName = project.name;
        frmCreate02(project.number, parent).exec();
    };
    roads.totals = [](QWidget* parent, const Project& project) {
        frmTJJS(project, DesignWindowType, parent).exec();
    };
    return roads;
}

ProjectNeeds KalvaneKernel::Needs() {
    ProjectNeeds needs;
    needs.list = [] {
        std::vector<std::pair<std::string, std::string>> projects;
        for (const Project& project : ListProjects(App().Main())) {
            projects.emplace_back(project.number, project.name);
        }
        return projects;
    };
    needs.of = [](const std::string& number, Notice& notice) {
        return MaterialOfProject(App().Main(), number, App().optimise.CLC, notice);
    };
    return needs;
}

void KalvaneKernel::ShowDatabase() {
    if (ActivateScreen(QStringLiteral("frmDatabase"))) return;
    (new frmDatabase(nullptr))->ShowModeless();
}

void KalvaneKernel::ShowDesign() {
    if (ActivateScreen(QStringLiteral("FrmDesign"))) return;
    (new FrmDesign(nullptr))->ShowModeless();
}

void KalvaneKernel::ShowGCGL() {
    if (ActivateScreen(QStringLiteral("frmMCGCGL"))) return;
    (new frmMCGCGL(Roads(), nullptr))->ShowModeless();
}

void KalvaneKernel::ShowTools(QWidget* parent) {
    frmTools(parent).exec();
}

}  // namespace kalvane
