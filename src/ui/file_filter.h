#pragma once

#include <QString>

namespace kalvane {

/// A file filter as this program writes it, "caption|pattern|caption|pattern" with patterns divided by ";",
/// in the form of the toolkit, "caption (pattern pattern);;caption (pattern)". "*.*" stands for every file,
/// also for one without a dot in its name. A caption without a pattern stands for every file.
QString ToToolkitFilter(const QString& filter);

}  // namespace kalvane
