#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kalvane {

inline QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

}  // namespace kalvane
