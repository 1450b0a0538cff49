#pragma once

#include <string>

#include "store/connection.h"

namespace kalvane::test {

/// Rows of a select as one text: fields separated by "|", rows by a line end, Null as "~".
inline std::string Rows(Connection& connection, const std::string& sql) {
    std::string text;
    for (Cursor row = connection.OpenCursor(sql); !row.Eof(); row.MoveNext()) {
        if (!text.empty()) text += '\n';
        for (int i = 0; i < row.FieldCount(); ++i) {
            if (i > 0) text += '|';
            text += row.Field(i).IsNull() ? "~" : row.Field(i).Text();
        }
    }
    return text;
}

}  // namespace kalvane::test
