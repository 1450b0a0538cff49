#include "catalogue/screens/catalogue_forms.h"

#include "session/app_state.h"
#include "ui/entry_form.h"
#include "ui/text.h"

namespace kalvane {
namespace {

QString BoxName(std::size_t index) {
    return QStringLiteral("Text1(%1)").arg(index);
}

EntryBox TextBox(std::size_t index, const char* column) {
    return {.name = BoxName(index), .caption = ToQt(column), .slot = index + 1, .column = ToQt(column)};
}

}  // namespace

bool InputMaker(QWidget* parent, const QString& title, const Maker& maker, const SaveMaker& save) {
    FieldSlots& slots = SharedFieldSlots();
    QStringList categories;
    for (const char* category : kMakerCategories) categories << ToQt(category);
    EntryForm input(QStringLiteral("frmInputCJ"), title,
                    {TextBox(0, "厂家名称"),
                     TextBox(1, "联系电话"),
                     TextBox(2, "厂址"),
                     TextBox(3, "传真"),
                     {.name = QStringLiteral("Combo1"),
                      .caption = QStringLiteral("厂家类别"),
                      .slot = 5,
                      .column = QStringLiteral("厂家类别"),
                      .choices = categories}},
                    slots, parent);
    input.Fill(
        {ToQt(maker.name), ToQt(maker.phone), ToQt(maker.address), ToQt(maker.fax), ToQt(maker.category)});
    return input.Run([&] { save({slots[1], slots[2], slots[3], slots[4], slots[5]}); });
}

bool InputSeries(QWidget* parent, const QString& title, const QString& name, const SaveName& save) {
    FieldSlots& slots = SharedFieldSlots();
    EntryForm input(QStringLiteral("frmInputXL"), title,
                    {{.name = QStringLiteral("Text1"),
                      .caption = QStringLiteral("系列名称"),
                      .slot = 1,
                      .column = QStringLiteral("系列名称")}},
                    slots, parent);
    input.Fill({name});
    return input.Run([&] { save(slots[1]); });
}

bool InputMaterial(QWidget* parent, const QString& title, const CatalogueClass& materialClass,
                   const MaterialTexts& texts, const SaveMaterial& save) {
    FieldSlots& slots = SharedFieldSlots();
    std::vector<EntryBox> boxes;
    QStringList filled;
    for (const MaterialColumn& column : materialClass.columns) {
        boxes.push_back({.name = BoxName(boxes.size()),
                         .caption = ToQt(column.caption),
                         .slot = boxes.size() + 1,
                         .keys = column.takesDigits ? NumberKeys::Decimal : NumberKeys::Any,
                         .column = ToQt(column.name)});
        filled << ToQt(texts[boxes.size() - 1]);
    }
    EntryForm input(ToQt(materialClass.dialog), title, std::move(boxes), slots, parent);
    input.Fill(filled);
    return input.Run([&] {
        MaterialTexts typed;
        for (std::size_t i = 1; i <= materialClass.columns.size(); ++i) typed.push_back(slots[i]);
        save(typed);
    });
}

bool InputPrice(QWidget* parent, const QString& title, const SaveName& save) {
    FieldSlots& slots = SharedFieldSlots();
    EntryForm input(QStringLiteral("frmPrice"), title,
                    {{.name = QStringLiteral("Text1"),
                      .caption = QStringLiteral("价格输入："),
                      .slot = 0,
                      .keys = NumberKeys::Decimal}},
                    slots, parent);
    input.SetPromptTitle(QStringLiteral("提示！"));
    input.Fill({QStringLiteral("10000")});
    return input.Run([&] { save(slots[0]); });
}

}  // namespace kalvane
