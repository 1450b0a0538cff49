#include "warehouse/note_layout.h"

#include <array>

namespace kalvane {

const NoteLayout& LayoutOf(NoteKind kind) {
    static const NoteLayout in = {"入库单",
                                  "入库单子表",
                                  "FrmEnter",
                                  "入库单填写",
                                  "入库单预览",
                                  "入库单报表",
                                  "无选取您要删除的记录!",
                                  {{&GoodsNote::number, "单据编号", "TxtDJBH", "自动编号:", false, true},
                                   {&GoodsNote::supplier, "来料来源", "TxtLLLY", "来料来源:", true},
                                   {&GoodsNote::amount, "采购金额", "TxtCGJE", "采购金额:", false, true},
                                   {&GoodsNote::purpose, "用途", "TxtYT", "用    途:", true},
                                   {&GoodsNote::paperNumber, "说明", "TxtSM", "单据编号:", true},
                                   {&GoodsNote::clerk, "采购员", "TxtCGY", "采购员:", true},
                                   {&GoodsNote::date, "采购日期", "TxtRQ", "采购日期:"}},
                                  {{&NoteLine::name, "名称"},
                                   {&NoteLine::code, "规格"},
                                   {&NoteLine::unit, "单位"},
                                   {&NoteLine::price, "单价", true},
                                   {&NoteLine::count, "数量", true},
                                   {&NoteLine::kind, "种类"}}};
    static const NoteLayout out = {"出库单",
                                   "出库单子表",
                                   "FrmPost",
                                   "出库单填写",
                                   "出库单预览",
                                   "出库单报表",
                                   "无选取所要删除的记录!",
                                   {{&GoodsNote::number, "单据编号", "TxtDJBH", "单据编号:", false, true},
                                    {&GoodsNote::purpose, "用途", "TxtYT", "用    途:", true},
                                    {&GoodsNote::paperNumber, "说明", "TxtSM", "领 料 人:", true},
                                    {&GoodsNote::clerk, "仓管员", "TxtCGY", "仓管员:", true},
                                    {&GoodsNote::date, "出库日期", "TxtRQ", "出库日期:"}},
                                   {{&NoteLine::name, "名称"},
                                    {&NoteLine::code, "规格"},
                                    {&NoteLine::unit, "单位"},
                                    {&NoteLine::count, "数量", true},
                                    {&NoteLine::kind, "种类"}}};
    return kind == NoteKind::In ? in : out;
}

std::span<const std::string_view> MaterialKinds() {
    static constexpr std::array<std::string_view, 4> kinds = {"型材", "型钢", "板材", "五金件"};
    return kinds;
}

}  // namespace kalvane
