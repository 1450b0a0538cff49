#include "ui/file_export.h"

#include <QDir>

#include "ui/dialogs.h"
#include "ui/open_document.h"
#include "ui/text.h"

namespace kalvane {
namespace {

/// The file that was written; empty when the operator cancelled.
QString Written(QWidget* parent, const SaveRequest& request, const WriteFile& write) {
    const QString file = UseDialogs().SaveFileName(parent, request);
    if (!file.isEmpty()) write(FromQt(file));
    return file;
}

void SayWhere(QWidget* parent, const QString& file) {
    Tell(parent, QStringLiteral("已保存到：%1").arg(QDir::toNativeSeparators(file)));
}

/// Writes a file and says where.
bool Export(QWidget* parent, const SaveRequest& request, const WriteFile& write) {
    const QString file = Written(parent, request, write);
    if (file.isEmpty()) return false;
    SayWhere(parent, file);
    return true;
}

}  // namespace

bool ExportText(QWidget* parent, const QString& purpose, const QString& name, const WriteFile& write,
                const QString& filter) {
    return Export(parent, {purpose, filter, QStringLiteral("txt"), name}, write);
}

bool ExportPdf(QWidget* parent, const QString& purpose, const QString& name, const WriteFile& write) {
    return Export(parent, {purpose, QStringLiteral("PDF 文件|*.pdf"), QStringLiteral("pdf"), name}, write);
}

bool ExportWorkbook(QWidget* parent, const QString& purpose, const QString& name, const WriteFile& write,
                    const QString& complaint) {
    const QString file = Written(
        parent, {purpose, QStringLiteral("Excel 工作簿|*.xlsx"), QStringLiteral("xlsx"), name}, write);
    if (file.isEmpty()) return false;
    if (!OpenDocument(file)) Tell(parent, complaint);
    SayWhere(parent, file);
    return true;
}

}  // namespace kalvane
