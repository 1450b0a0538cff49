#include "output/screens/tally_files.h"

#include "session/app_state.h"
#include "ui/file_export.h"
#include "ui/text.h"

namespace kalvane {

bool SaveTables(QWidget* parent, const std::vector<FileTable>& tables) {
    const QString purpose = QStringLiteral("tally");
    const QString name = ToQt(App().currentProjectName) + QLatin1Char('-') + ToQt(tables.front().title);
    if (App().outputFileType != 0) {
        return ExportText(
            parent, purpose, name,
            [&](const auto& file) { SaveTableText(tables, TabPlace::BehindEachCell, file); },
            QStringLiteral("文本文件|*.txt"));
    }
    return ExportWorkbook(
        parent, purpose, name, [&](const auto& file) { TableWorkbook(tables).Save(file); },
        QStringLiteral("没有找到打开工作簿的程序，文件已经保存。"));
}

}  // namespace kalvane
