#include "drawing/screens/desk_files.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include "drawing/drawing_desk.h"
#include "drawing/dxf_import.h"
#include "numeric/error.h"
#include "ui/dialogs.h"
#include "ui/text.h"

namespace kalvane {
namespace {

const QString kFilter = QStringLiteral("门窗图(*.MC)|*.Mc");
const QString kDxfFilter = QStringLiteral("DXF(*.DXF)|*.Dxf");
const QString kSuffix = QStringLiteral("MC");
const QString kDxfSuffix = QStringLiteral("DXF");
const QString kFolder = QStringLiteral("drawing");

bool HasSuffix(const QString& file, const QString& suffix) {
    return QFileInfo(file).suffix().compare(suffix, Qt::CaseInsensitive) == 0;
}

}  // namespace

QString DeskFiles::DraggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1) return {};
    const QString file = urls.front().toLocalFile();
    return HasSuffix(file, kSuffix) || HasSuffix(file, kDxfSuffix) ? file : QString();
}

void DeskFiles::Open(const QString& file) {
    HasSuffix(file, kDxfSuffix) ? ImportDxfFile(file) : OpenDrawing(file);
}

void DeskFiles::ChooseToOpen() {
    const QString file = UseDialogs().OpenFileName(screen_, kFolder, kFilter);
    if (!file.isEmpty()) OpenDrawing(file);
}

void DeskFiles::ChooseToSave() {
    const QString file = UseDialogs().SaveFileName(screen_, {kFolder, kFilter, kSuffix, {}, false});
    if (file.isEmpty()) return;
    if (QFileInfo::exists(file) &&
        !UseDialogs().AskOkCancel(screen_, QStringLiteral("文件已存在是否覆盖？"), QStringLiteral("保存文件"),
                                  Dialogs::Answer::No)) {
        return;
    }
    Save(file);
}

void DeskFiles::ChooseDxf() {
    const QString file = UseDialogs().OpenFileName(screen_, kFolder, kDxfFilter);
    if (!file.isEmpty()) ImportDxfFile(file);
}

void DeskFiles::OpenDrawing(const QString& file) {
    try {
        desk_.OpenFile(FromQt(file));
    } catch (const Error& error) {
        prompt_(error.what());
    }
}

void DeskFiles::Save(const QString& file) {
    try {
        desk_.SaveFile(FromQt(file));
    } catch (const CodePageError&) {
        throw;
    } catch (const FileError& error) {
        prompt_(error.what());
    }
}

void DeskFiles::ImportDxfFile(const QString& file) {
    desk_.Replace([&](CPictire& picture) { prompt_(DxfPrompt(ImportDxf(FromQt(file), picture))); });
}

}  // namespace kalvane
