#include "warehouse/screens/note_preview.h"

#include "session/app_state.h"
#include "warehouse/goods_notes.h"
#include "warehouse/screens/FrmEnter.h"
#include "warehouse/screens/FrmPost.h"

namespace kalvane {
namespace {

template <typename NoteForm>
void Show(NoteKind kind, const std::string& number, QWidget* parent) {
    NoteForm form(number, parent);
    form.Preview(LoadNote(App().Stock(), kind, number));
    form.exec();
}

}  // namespace

void PreviewNote(NoteKind kind, const std::string& number, QWidget* parent) {
    if (kind == NoteKind::In) {
        Show<FrmEnter>(kind, number, parent);
    } else {
        Show<FrmPost>(kind, number, parent);
    }
}

}  // namespace kalvane
