#pragma once

#include <functional>
#include <optional>

#include "project/project_list.h"
#include "project/screens/project_roads.h"
#include "ui/screen.h"

namespace kalvane {

class ReportList;

/// The list of projects.
class frmMCGCGL : public Screen {
    Q_OBJECT

  public:
    frmMCGCGL(ProjectRoads roads, QWidget* parent);

  private:
    void Load();
    void Add();
    void Edit();
    void Delete();
    void Open();
    void OpenContract();
    /// Copies windows of any project into the selected one.
    void CopyWindowsHere();
    /// Copies the selected project with all its windows, under a name that is asked for.
    void Duplicate();

    /// Has a project typed in and saved; nothing when cancelled.
    std::optional<Project> Input(const QString& title, Project project,
                                 const std::function<void(Project&)>& save);

    const ProjectRoads roads_;
    ReportList* lvw_;
};

}  // namespace kalvane
