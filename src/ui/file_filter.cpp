#include "ui/file_filter.h"

#include <QStringList>

namespace kalvane {

QString ToToolkitFilter(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& part : parts.value(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const QString pattern = part.trimmed();
            patterns << (pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern);
        }
        if (patterns.isEmpty()) patterns << QStringLiteral("*");
        // The toolkit takes the first bracket of an entry for its patterns.
        QString caption = parts[i].trimmed();
        caption = caption.left(caption.indexOf(QLatin1Char('('))).trimmed();
        filters << QStringLiteral("%1 (%2)").arg(caption, patterns.join(QLatin1Char(' ')));
    }
    return filters.join(QStringLiteral(";;"));
}

}  // namespace kalvane
