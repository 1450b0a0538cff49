#pragma once

#include <QString>
#include <filesystem>
#include <functional>

class QWidget;

namespace kalvane {

// The one way from a screen to a file: asks where, has the file written, and says where it was written. Each
// is false when the operator cancelled; what `write` throws goes to the caller. `purpose` names the
// remembered folder, `name` is suggested, without its ending.

using WriteFile = std::function<void(const std::filesystem::path& file)>;

/// A text file; `filter` as in SaveRequest.
bool ExportText(QWidget* parent, const QString& purpose, const QString& name, const WriteFile& write,
                const QString& filter = QStringLiteral("*.txt|*.txt"));

/// A PDF file.
bool ExportPdf(QWidget* parent, const QString& purpose, const QString& name, const WriteFile& write);

/// An .xlsx file, which is opened in the desktop's program for it; `complaint` is said when there is none.
bool ExportWorkbook(QWidget* parent, const QString& purpose, const QString& name, const WriteFile& write,
                    const QString& complaint);

}  // namespace kalvane
