#pragma once

#include "project/project_list.h"
#include "project/project_windows.h"
#include "project/screens/project_roads.h"
#include "ui/screen.h"

namespace kalvane {

class FilteredWindows;
class ReportList;
class frmAddGCMC;
class frmAddGCZHMC;

/// The opened project with its windows. One at a time, as there is one current project.
class frmOpenGC : public Screen {
    Q_OBJECT

  public:
    frmOpenGC(ProjectRoads roads, QWidget* parent);

    /// Shows the project in the screen that is open, or else in a new one.
    static void Open(const Project& project, const ProjectRoads& roads);
    /// The open screen if it shows that project, else null.
    static frmOpenGC* OfProject(const std::string& number);

    /// Makes it the current project and lists its windows. Throws StoreError.
    void SetProject(const Project& project);

  private:
    static frmOpenGC* Shown();

    void Add();
    void AddComposite();
    void Edit();
    void EditComposite(const WindowEntry& window);
    void Delete();
    void AskStartNumber();
    void ShowSheets();
    void Optimise();
    void ShowTotals();
    /// Runs the screen of one window, and lists the windows anew after every change it makes.
    void RunWindowScreen(frmAddGCMC& screen);
    /// Runs the screen of a composite; each that it saves becomes the last row.
    void RunCompositeScreen(frmAddGCZHMC& screen);
    /// Prints the windows that are shown, in their order.
    void PrintList();
    /// Lists the windows as they are in the store and selects the one of that number, if it is there.
    void Reload(const QString& selected);
    QString SelectedNumber() const;

    const ProjectRoads roads_;
    ReportList* lvw_;
    FilteredWindows* windows_;
    Project project_;
};

}  // namespace kalvane
