#pragma once

#include <QString>

namespace kalvane {

/// Opens a file in the program that the operator's desktop has for its kind. False when there is none; the
/// file stays as it is.
bool OpenDocument(const QString& file);

}  // namespace kalvane
