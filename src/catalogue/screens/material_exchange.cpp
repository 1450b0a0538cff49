#include "catalogue/screens/material_exchange.h"

#include "catalogue/material_sheet.h"
#include "catalogue/price_change.h"
#include "catalogue/screens/material_list.h"
#include "session/app_state.h"
#include "ui/dialogs.h"
#include "ui/file_export.h"
#include "ui/report_output.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr std::size_t kMostRefusals = 10;

QString Purpose() {
    return QStringLiteral("materials");
}

QString RefusalText(const std::vector<std::string>& refusals) {
    QString text = QStringLiteral("有 %1 处不能导入，请改好后再导入：").arg(refusals.size());
    for (std::size_t i = 0; i < refusals.size() && i < kMostRefusals; ++i) {
        text += QLatin1Char('\n') + ToQt(refusals[i]);
    }
    return text;
}

}  // namespace

void ExportMaterials(QWidget* screen, const MaterialList& list, const QString& title) {
    const FileTable table = MaterialTable(*list.Class(), FromQt(title), list.Visible());
    ExportWorkbook(
        screen, Purpose(), title,
        [&](const std::filesystem::path& file) { TableWorkbook({table}).Save(file); },
        QStringLiteral("这台电脑上没有打开电子表格的程序。"));
}

void ImportMaterials(QWidget* screen, MaterialList& list, const QString& title) {
    const QString file = UseDialogs().OpenFileName(screen, Purpose(),
                                                   QStringLiteral("Excel 工作簿|*.xlsx|Excel 工作簿|*.xls"));
    if (file.isEmpty()) return;
    const SheetTexts sheet = ReadFirstSheet(FromQt(file), kMaterialSheetColumns);
    const MaterialChanges changes = CompareSheet(App().Main(), *list.Class(), list.Node(), sheet);
    if (!changes.refusals.empty()) return Tell(screen, RefusalText(changes.refusals));
    const QString counts = QStringLiteral("新增 %1 种，更改 %2 种，%3 种没有变化")
                               .arg(changes.added.size())
                               .arg(changes.changed.size())
                               .arg(changes.same);
    if (changes.added.empty() && changes.changed.empty()) return Tell(screen, counts + QStringLiteral("。"));
    if (!Ask(screen,
             QStringLiteral("导入到“%1”：%2（名称和规格相同的算同一种）。要导入吗？").arg(title, counts)))
        return;
    ApplyChanges(App().Main(), *list.Class(), list.Node(), changes);
    list.Reload();
}

void RaisePricesOf(QWidget* screen, MaterialList& list, const QString& title) {
    const CatalogueClass& materialClass = *list.Class();
    if (materialClass.priceCaption == nullptr) {
        return Tell(screen, QStringLiteral("配件的价格只能逐条修改。"));
    }
    const std::optional<QString> percent =
        UseDialogs().InputText(screen, QStringLiteral("按百分比调价"),
                               QStringLiteral("提高百分之几（降低用负数）："), QStringLiteral("5"));
    if (!percent) return;
    const std::string change = FromQt(*percent);
    const PriceChange preview = PreviewPrices(App().Main(), materialClass, list.Node(), change);
    if (preview.count == 0) return Tell(screen, QStringLiteral("“%1”没有带价格的材料。").arg(title));
    const QString question =
        QStringLiteral("“%1”的 %2 种%3的价格都按 %4% 调整，例如 %5 改为 %6。要调整吗？")
            .arg(title)
            .arg(preview.count)
            .arg(ToQt(materialClass.name), *percent, ToQt(preview.before), ToQt(preview.after));
    if (!Ask(screen, question)) return;
    RaisePrices(App().Main(), materialClass, list.Node(), change);
    list.Reload();
}

void PrintMaterials(QWidget* screen, const MaterialList& list, const QString& title) {
    PrintReport(screen, MaterialReport(*list.Class(), FromQt(title), list.Visible()));
}

}  // namespace kalvane
