#include "project/member_rows.h"

#include "store/command_scope.h"

namespace kalvane {

std::string NumberOrNull(const FieldValue& value) {
    return value.IsNull() ? "Null" : value.Text();
}

void CopyMemberRows(Connection& connection, std::string_view from, std::string_view to) {
    for (Cursor row = connection.OpenCursor("Select * from 标注2 where MCBN=" + std::string(from));
         !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return "'" + row.Field(column).TextOrEmpty() + "'"; };
        const auto number = [&row](const char* column) { return NumberOrNull(row.Field(column)); };
        connection.Execute("Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,Px,Py,Count) Values(" + std::string(to) +
                           "," + number("CBN") + "," + text("MC") + "," + text("MCZ") + "," + text("CMC") +
                           "," + number("px") + "," + number("py") + "," + number("Count") + ")");
    }
}

void DropMembersUnderEdit(Connection& connection) {
    InCommand(connection, [&] {
        connection.Execute(std::string("Delete * from 标注2 where MCBN=") + kMembersUnderEdit);
    });
}

}  // namespace kalvane
