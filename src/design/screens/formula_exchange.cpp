#include "design/screens/formula_exchange.h"

#include <QPlainTextEdit>
#include <QPushButton>

#include "design/formula_export.h"
#include "design/formula_import.h"
#include "design/window_type_tree.h"
#include "numeric/error.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/file_export.h"
#include "ui/guard.h"
#include "ui/node_tree.h"
#include "ui/screen.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kPreviewSize(680, 460);
const QString kPurpose = QStringLiteral("formulas");
const QString kNoSpreadsheet = QStringLiteral("确认您的系统上是否安装了Excel软件");

/// Does the work under a title of its own and sets another when it is over, however it ends. A failure is
/// reported with its reason behind the general hint.
void RunTitled(QWidget* screen, const QString& during, const QString& after,
               const std::function<void()>& work) {
    screen->setWindowTitle(during);
    try {
        work();
    } catch (const Error&) {
        screen->setWindowTitle(after);
        Tell(screen, kNoSpreadsheet);
        throw;
    }
    screen->setWindowTitle(after);
}

/// Shows what an import will do, a line for each type; true to go on. Enter leaves one that will be refused.
bool GoOn(QWidget* parent, const ImportPreview& preview) {
    Screen screen(QStringLiteral("frmImportPreview"), QStringLiteral("导入公式"), parent);
    auto* body = new QPlainTextEdit(ToQt(PreviewText(preview)), &screen);
    body->setObjectName(QStringLiteral("Text1"));
    body->setReadOnly(true);
    QPushButton* import = MakeButton("OKButton", QStringLiteral("导入 &Y"), &screen);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消 &C"), &screen);
    LayOutAboveButtons(&screen, body, {import, cancel});
    screen.resize(kPreviewSize);
    QPushButton* usual = preview.refusedRow == 0 ? import : cancel;
    usual->setDefault(true);
    usual->setFocus();
    OnSignal(import, &QPushButton::clicked, &screen, [&screen] { screen.accept(); });
    OnSignal(cancel, &QPushButton::clicked, &screen, [&screen] { screen.Leave(); });
    return screen.exec() == QDialog::Accepted;
}

}  // namespace

void ExportFormulas(QWidget* screen) {
    const QString title = QStringLiteral("门窗设计");
    RunTitled(screen, QStringLiteral("正在导出到Excel中......"), title, [&] {
        const std::vector<GridLine> grid = FormulaGrid(App().Main());
        ExportWorkbook(
            screen, kPurpose, QStringLiteral("门窗公式"),
            [&](const std::filesystem::path& file) { SaveFormulaGrid(grid, file); }, kNoSpreadsheet);
    });
}

bool ImportFormulasInto(const QTreeWidgetItem* node, QWidget* screen) {
    if (node == nullptr || NodeTree::Kind(node) != kWindowSeriesKind) {
        Tell(screen, QStringLiteral("当前状态下不能导入公式！必须在系列状态"));
        return false;
    }
    const QString file =
        UseDialogs().OpenFileName(screen, kPurpose, QStringLiteral("Excel公式表|*.xls|Excel 工作簿|*.xlsx"));
    if (file.isEmpty()) return false;
    bool imported = false;
    RunTitled(screen, QStringLiteral("Excel公式导入正在进行中......"), QStringLiteral("设计门窗"), [&] {
        const SheetTexts sheet = ReadFormulaSheet(FromQt(file));
        if (!GoOn(screen, PreviewImport(App().Main(), sheet))) return;
        imported = true;
        ImportedFormulas progress;
        ImportFormulas(App().Main(), sheet, NodeTree::Id(node), progress);
    });
    return imported;
}

}  // namespace kalvane
