#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

/// A line of a note, as typed. A goods-out line has no price.
struct NoteLine {
    std::string name;
    std::string code;  ///< 规格, by which the stock row is found
    std::string unit;
    std::string price;  ///< yuan a unit
    std::string count;
    std::string kind;  ///< one of MaterialKinds()
};

/// A goods-in or goods-out note. A goods-out note has no supplier and no amount.
struct GoodsNote {
    std::string number;
    std::string supplier;
    std::string amount;  ///< yuan
    std::string purpose;
    std::string paperNumber;  ///< of the paper note; who takes the goods on a goods-out note
    std::string clerk;
    std::string date;  ///< a day: "2002-03-04"
    std::vector<NoteLine> lines;
};

enum class NoteKind { In, Out };

/// One head field of a note: where it is kept, stored and shown.
struct NoteField {
    std::string GoodsNote::*member;
    std::string_view column;
    std::string_view box;    ///< control on the screen
    std::string_view label;  ///< before it
    bool mustBeFilled = false;
    bool isNumber = false;
};

struct NoteLineField {
    std::string NoteLine::*member;
    std::string_view column;
    bool isNumber = false;
};

/// What differs between the two notes.
struct NoteLayout {
    std::string_view table;
    std::string_view lineTable;
    std::string_view screen;
    std::string_view title;
    std::string_view previewTitle;
    std::string_view reportTitle;
    std::string_view noLineToDelete;  ///< said when no line is selected
    std::vector<NoteField> fields;    ///< in the order of the screen and of the store
    std::vector<NoteLineField> lineFields;
};

const NoteLayout& LayoutOf(NoteKind kind);

/// 型材, 型钢, 板材, 五金件.
std::span<const std::string_view> MaterialKinds();

}  // namespace kalvane
