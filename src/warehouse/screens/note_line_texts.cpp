#include "warehouse/screens/note_line_texts.h"

#include "ui/text.h"

namespace kalvane {

QStringList LineColumns(NoteKind kind) {
    QStringList columns;
    for (const NoteLineField& field : LayoutOf(kind).lineFields) columns << ToQt(field.column);
    return columns;
}

QStringList LineTexts(NoteKind kind, const NoteLine& line) {
    QStringList texts;
    for (const NoteLineField& field : LayoutOf(kind).lineFields) texts << ToQt(line.*field.member);
    return texts;
}

NoteLine LineOf(NoteKind kind, const QStringList& texts) {
    NoteLine line;
    int column = 0;
    for (const NoteLineField& field : LayoutOf(kind).lineFields) {
        line.*field.member = FromQt(texts[column++]);
    }
    return line;
}

}  // namespace kalvane
