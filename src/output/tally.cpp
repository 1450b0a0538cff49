#include "output/tally.h"

#include "formula/composite.h"
#include "formula/expansion.h"
#include "platform/held_notice.h"
#include "platform/notice_limit.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

/// More windows than these are hardly wrong each in its own way.
constexpr int kMostFailures = 50;

/// The statement that adds a raw row; texts between quotes as they are, numbers bare.
std::string InsertStatement(const BillRow& row) {
    const std::string texts = "'" + row.name + "','" + row.code + "',";
    switch (row.materialClass) {
        case MaterialClass::Profile:
            return "Insert into outxc (名称,规格,长度,数量) values(" + texts + row.length + "," +
                   row.quantity + ")";
        case MaterialClass::Steel:
            return "Insert into outxg (名称,规格,长度,数量) values(" + texts + row.length + "," +
                   row.quantity + ")";
        case MaterialClass::Fitting:
            return "Insert into outpj (名称,规格,数量,单位) values(" + texts + row.quantity + ",'" +
                   row.unit + "')";
        case MaterialClass::Panel:
            break;
    }
    return "Insert into outpc (名称,长,宽,数量) values('" + row.name + "'," + row.length + "," + row.width +
           "," + row.quantity + ")";
}

WindowToExpand ToExpand(const WindowEntry& window) {
    return {window.number, window.typeNumber, window.count};
}

BillSink InsertInto(Connection& connection) {
    return [&connection](const BillRow& row) { connection.Execute(InsertStatement(row)); };
}

}  // namespace

void ClearTallies(Connection& connection) {
    for (const char* table : {"outxc", "outxg", "outpc", "outpj", "outTj"}) {
        connection.Execute(std::string("Delete * from ") + table);
    }
}

void GatherPlainWindow(Connection& connection, FormulaRows& rows, const WindowEntry& window, Notice& notice) {
    ExpandPlain(connection, rows, ToExpand(window), notice, InsertInto(connection), NullUnit::CountsZero);
}

void GatherCompositeWindow(Connection& connection, FormulaRows& rows, const WindowEntry& window) {
    ExpandComposite(connection, rows, ToExpand(window), InsertInto(connection), NullUnit::CountsZero);
}

std::vector<std::string> GatherTallies(Connection& connection, std::span<const WindowEntry> windows,
                                       Notice& notice) {
    NoticeLimit limit(notice, kMostFailures, "还有更多的门窗没有统计完整，不再逐个提示。");
    HeldNotice held;
    std::vector<std::string> cutShort;
    try {
        InCommand(connection, [&] {
            ClearTallies(connection);
            FormulaRows rows(connection);
            for (const WindowEntry& window : windows) {
                if (IsComposite(window.typeNumber)) {
                    GatherCompositeWindow(connection, rows, window);
                    continue;
                }
                const std::size_t before = held.Count();
                GatherPlainWindow(connection, rows, window, held);
                if (held.Count() > before) cutShort.push_back(window.name);
            }
        });
    } catch (...) {
        held.PassOn(limit);
        throw;
    }
    held.PassOn(limit);
    return cutShort;
}

}  // namespace kalvane
