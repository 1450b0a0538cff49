#include "warehouse/screens/goods_in_line.h"

#include <algorithm>

#include "numeric/error.h"
#include "ui/entry_form.h"
#include "ui/text.h"
#include "warehouse/goods_notes.h"
#include "warehouse/screens/material_completion.h"

namespace kalvane {
namespace {

QStringList Kinds() {
    QStringList kinds;
    for (const std::string_view kind : MaterialKinds()) kinds << ToQt(kind);
    return kinds;
}

std::vector<EntryBox> Boxes() {
    const struct {
        const char* name;
        QString caption;
        NumberKeys keys;
    } kBoxes[] = {{"TxtMC", QStringLiteral("名称:"), NumberKeys::Any},
                  {"TxtGG", QStringLiteral("规格:"), NumberKeys::Any},
                  {"TxtDW", QStringLiteral("单位:"), NumberKeys::Any},
                  {"TxtDJ", QStringLiteral("单价:"), NumberKeys::Decimal},
                  {"TxtSL", QStringLiteral("数量:"), NumberKeys::Digits},
                  {"CmbZL", QStringLiteral("种类:"), NumberKeys::Any}};
    std::vector<EntryBox> boxes;
    for (const auto& box : kBoxes) {
        const std::size_t slot = boxes.size();
        const NoteLineField& field = LayoutOf(NoteKind::In).lineFields[slot];
        boxes.push_back({.name = QLatin1String(box.name),
                         .caption = box.caption,
                         .slot = slot,
                         .keys = box.keys,
                         .column = ToQt(field.column)});
    }
    boxes.back().choices = Kinds();
    return boxes;
}

}  // namespace

std::optional<NoteLine> EnterGoodsInLine(QWidget* parent, const NoteLine& line) {
    const std::vector<NoteLineField>& fields = LayoutOf(NoteKind::In).lineFields;
    FieldSlots slots;
    EntryForm form(QStringLiteral("frmEnterData"), QStringLiteral("录入数据"), Boxes(), slots, parent);
    form.SetPromptText(ToQt(kIncompleteNote));
    form.SetCaptions(QStringLiteral("确定"), QStringLiteral("取消"));
    QStringList texts;
    for (const NoteLineField& field : fields) texts << ToQt(line.*field.member);
    texts.back() = QString::number(Kinds().indexOf(texts.back()) + 1);
    form.Fill(texts);
    CompleteMaterials(&form);

    NoteLine entered;
    const bool confirmed = form.Run([&] {
        for (std::size_t i = 0; i < fields.size(); ++i) entered.*fields[i].member = slots[i];
        entered.kind = MaterialKinds()[std::stoul(entered.kind) - 1];
        if (const auto refusal = RefusedField(NoteKind::In, entered)) {
            throw ColumnError(std::string(refusal->field->column), refusal->text);
        }
    });
    return confirmed ? std::optional(entered) : std::nullopt;
}

}  // namespace kalvane
