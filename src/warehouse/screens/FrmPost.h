#pragma once

#include "warehouse/project_needs.h"
#include "warehouse/screens/note_screen.h"

namespace kalvane {

/// A goods-out note. Its lines are picked from the stock, or offered for a project.
class FrmPost : public NoteScreen {
    Q_OBJECT

  public:
    /// Without `needs` nothing is offered for projects.
    FrmPost(const std::string& number, QWidget* parent, ProjectNeeds needs = {});

  private:
    void OfferForProject();

    const ProjectNeeds needs_;
};

}  // namespace kalvane
