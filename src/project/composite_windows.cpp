#include "project/composite_windows.h"

#include <algorithm>

#include "numeric/number.h"
#include "numeric/text.h"
#include "project/refused_save.h"
#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

constexpr double kBelowFirstSuffix = 9;
constexpr std::size_t kSuffixCharacters = 2;

/// Condition for the rows of one member.
std::string RowsOf(const CompositeMember& member, std::string_view mcbn = kMembersUnderEdit) {
    return " where MCBN=" + std::string(mcbn) + " and CBN=" + member.tag + " and CMC='" + member.name + "'";
}

void InsertMemberRows(Connection& connection, const CompositeMember& member, std::span<const LabelRow> labels,
                      const std::string& count) {
    for (const LabelRow& label : labels) {
        connection.Execute("Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,px,py,Count) values(" +
                           std::string(kMembersUnderEdit) + "," + member.tag + ",'" + label.name + "','" +
                           label.value + "','" + member.name + "'," + label.x + "," + label.y + "," + count +
                           ")");
    }
}

/// The window's labels, which are those of its main drawing. Their count stays Null.
void CopyMainLabels(Connection& connection, const WindowEntry& window) {
    for (Cursor row = connection.OpenCursor("Select * from 标注 where MCNUM=" + window.number); !row.Eof();
         row.MoveNext()) {
        connection.Execute("Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,Px,Py) Values(" +
                           std::string(kMembersUnderEdit) + "," + window.typeNumber + ",'" +
                           row.Field("MC").TextOrEmpty() + "','" + row.Field("schar").TextOrEmpty() + "','" +
                           window.name + "'," + NumberOrNull(row.Field("px")) + "," +
                           NumberOrNull(row.Field("py")) + ")");
    }
}

/// The main drawing's rows become labels of the window.
void MoveMainRows(Connection& connection, const WindowEntry& window) {
    const std::string main = " from 标注2 where MCBN=" + window.number + " and CBN=" + window.typeNumber;
    for (Cursor row = connection.OpenCursor("Select *" + main); !row.Eof(); row.MoveNext()) {
        connection.Execute("Insert into 标注 (MCNUM,MC,Px,Py,schar) Values(" + window.number + ",'" +
                           row.Field("MC").TextOrEmpty() + "'," + NumberOrNull(row.Field("px")) + "," +
                           NumberOrNull(row.Field("py")) + ",'" + row.Field("MCZ").TextOrEmpty() + "')");
    }
    connection.Execute("Delete *" + main);
}

std::string StoredNow(Connection& connection, const WindowEntry& window) {
    return RowExists(connection, "工程门窗", "编号", window.number, "N")
               ? "门窗“" + window.name + "”的名称和尺寸已写入，标注和各项门窗还没有写全。"
               : "工程里现在没有门窗“" + window.name + "”这一行。";
}

}  // namespace

bool IsMainDrawing(const CompositeMember& member) {
    return Val(member.tag) < 0;
}

std::string NextMemberSuffix(std::span<const CompositeMember> members) {
    double highest = kBelowFirstSuffix;
    for (const CompositeMember& member : members) {
        highest = std::max(highest, Val(RightChars(member.name, kSuffixCharacters)));
    }
    return ShortText(highest + 1);
}

void AddMemberRows(Connection& connection, const CompositeMember& member, std::span<const LabelRow> labels) {
    InCommand(connection, [&] { InsertMemberRows(connection, member, labels, "1"); });
}

void RemoveMemberRows(Connection& connection, std::string_view tag) {
    InCommand(connection, [&] {
        connection.Execute("Delete * from 标注2 where MCBN=" + std::string(kMembersUnderEdit) +
                           " and CBN=" + std::string(tag));
    });
}

void RemoveMainRows(Connection& connection) {
    InCommand(connection, [&] {
        connection.Execute("Delete * from 标注2 where MCBN=" + std::string(kMembersUnderEdit) + " and CBN<0");
    });
}

std::vector<CompositeMember> ListMembers(Connection& connection, std::string_view mcbn) {
    std::vector<CompositeMember> members;
    for (Cursor group = connection.OpenCursor("Select CBN,CMC from 标注2 where MCBN=" + std::string(mcbn) +
                                              " Group by CBN,CMC");
         !group.Eof(); group.MoveNext()) {
        members.push_back({group.Field("CMC").TextOrEmpty(), group.Field("CBN").TextOrEmpty()});
    }
    return members;
}

std::vector<LabelRow> LoadMemberRows(Connection& connection, const CompositeMember& member,
                                     std::string_view mcbn) {
    std::vector<LabelRow> labels;
    for (Cursor row = connection.OpenCursor("Select * from 标注2" + RowsOf(member, mcbn)); !row.Eof();
         row.MoveNext()) {
        labels.push_back({row.Field("MC").TextOrEmpty(), row.Field("MCZ").TextOrEmpty(),
                          NumberOrNull(row.Field("px")), NumberOrNull(row.Field("py"))});
    }
    return labels;
}

std::string LoadMemberCount(Connection& connection, const CompositeMember& member, std::string_view mcbn) {
    if (!IsMainDrawing(member)) {
        const Cursor row = connection.OpenCursor("Select * from 标注2" + RowsOf(member, mcbn));
        if (!row.Eof() && !row.Field("Count").IsNull()) return row.Field("Count").Text();
    }
    return "1";
}

void StoreMemberRows(Connection& connection, const CompositeMember& member, std::span<const LabelRow> labels,
                     const std::string& count) {
    if (labels.empty()) return;
    InCommand(connection, [&] {
        connection.Execute("Delete * from 标注2" + RowsOf(member));
        InsertMemberRows(connection, member, labels, count);
    });
}

std::vector<CompositeMember> OpenComposite(Connection& connection, const WindowEntry& window) {
    std::vector<CompositeMember> members;
    InCommand(connection, [&] {
        DropMembersUnderEdit(connection);
        CopyMemberRows(connection, window.number, kMembersUnderEdit);
        CopyMainLabels(connection, window);
        members = ListMembers(connection, kMembersUnderEdit);
    });
    return members;
}

void SaveComposite(Connection& connection, WindowEntry& window) {
    CommandScope scope(connection);
    bool areMoved = false;  // the rows under edit, to the number of the window
    try {
        if (window.number.empty()) window.number = GetNextId(connection, "工程门窗");
        connection.Execute("Delete * from 工程门窗 where 编号=" + window.number);
        InsertWindowRow(connection, window);
        connection.Execute("Delete * from 标注2 where MCBN=" + window.number);
        connection.Execute("Update 标注2 set MCBN=" + window.number + " where MCBN=" + kMembersUnderEdit);
        areMoved = true;
        connection.Execute("Delete * from 标注 where MCNUM=" + window.number);
        MoveMainRows(connection, window);
        scope.Finish();
    } catch (const StoreError& refusal) {
        if (scope.IsUndone()) ThrowRefusal(refusal, "存储的内容没有变动。");
        if (areMoved) {
            connection.Execute("Update 标注2 set MCBN=" + std::string(kMembersUnderEdit) +
                               " where MCBN=" + window.number);
        }
        ThrowRefusal(refusal, StoredNow(connection, window));
    }
}

}  // namespace kalvane
