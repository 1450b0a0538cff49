#include "design/window_type_tree.h"

#include "numeric/error.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

// Columns of 门窗.
constexpr std::size_t kNameSlot = 2;
constexpr std::size_t kDrawingSlot = 4;

std::vector<TreeNode> LoadLevel(Connection& connection, const char* kind, const std::string& select) {
    std::vector<TreeNode> nodes;
    Cursor row = connection.OpenCursor(select);
    const int name = row.FieldIndex("名称");
    const int number = row.FieldIndex("编号");
    nodes.reserve(static_cast<std::size_t>(row.RecordCount()));
    for (; !row.Eof(); row.MoveNext()) {
        nodes.push_back({row.Field(name).TextOrEmpty(), MakeKey(kind, row.Field(number).TextOrEmpty()), {}});
    }
    return nodes;
}

}  // namespace

bool IsWindowType(std::string_view tag) {
    return KeyKind(tag) == kWindowTypeKind;
}

std::vector<TreeNode> LoadWindowTypes(Connection& connection) {
    std::vector<TreeNode> makers =
        LoadLevel(connection, kWindowMakerKind, "Select * from 门窗厂家 order by 编号");
    for (TreeNode& maker : makers) {
        maker.children =
            LoadLevel(connection, kWindowSeriesKind,
                      "Select * from 门窗系列 Where 厂家编号=" + KeyId(maker.tag) + " order by 编号");
        for (TreeNode& series : maker.children) {
            series.children =
                LoadLevel(connection, kWindowTypeKind,
                          "Select * from 门窗 Where 系列编号=" + KeyId(series.tag) + " order by 名称");
        }
    }
    return makers;
}

WindowType ReadWindowType(Connection& connection, std::string_view typeNumber, FieldSlots& slots) {
    LoadRowById(connection, "门窗", typeNumber, slots);
    return {slots[kNameSlot], slots[kDrawingSlot]};
}

std::string DrawingOfWindowType(Connection& connection, std::string_view typeNumber, FieldSlots& slots) {
    const WindowType type = ReadWindowType(connection, typeNumber, slots);
    if (type.drawing.empty()) {
        throw StoreError("窗型“" + type.name + "”还没有图，请先在“窗型设计”中为它选图。");
    }
    return type.drawing;
}

}  // namespace kalvane
