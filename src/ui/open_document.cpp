#include "ui/open_document.h"

#include <QDesktopServices>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace kalvane {
namespace {

constexpr int kPatienceMilliseconds = 2000;

/// The desktop's opener reports success before it knows whether a program is there, so the desktop is asked
/// first. A desktop that does not answer is taken to have one.
bool HasProgramFor(const QString& file) {
    const QString asker = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (asker.isEmpty()) return true;
    QProcess process;
    process.start(asker, {QStringLiteral("query"), QStringLiteral("default"),
                          QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).name()});
    if (!process.waitForFinished(kPatienceMilliseconds)) return true;
    return !process.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace

bool OpenDocument(const QString& file) {
    return HasProgramFor(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

}  // namespace kalvane
