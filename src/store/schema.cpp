#include "store/schema.h"

#include "numeric/text.h"

namespace kalvane {
namespace {

using enum ColumnType;

constexpr Column kMaterialMakerColumns[] = {
    {"编号", Int32},    {"厂家名称", Text, 50}, {"联系电话", Text, 15},
    {"厂址", Text, 50}, {"传真", Text, 15},     {"厂家类别", Text, 10},
};
constexpr Column kProfileSeriesColumns[] = {
    {"厂家编号", Int32},
    {"编号", Int32},
    {"系列名称", Text, 50},
};
constexpr Column kProfileColumns[] = {
    {"系列编号", Int32},    {"编号", Int32},         {"型材名称", Text, 20},
    {"型材型号", Text, 20}, {"型材长度", Int32},     {"型材厚度", Float32},
    {"型材颜色", Text, 10}, {"型材线密度", Float32}, {"型材吨价格", Float32},
};
constexpr Column kSteelColumns[] = {
    {"厂家编号", Int32},    {"编号", Int32},         {"型钢名称", Text, 20},
    {"型钢规格", Text, 20}, {"型钢长度", Int32},     {"型钢厚度", Text, 20},
    {"型钢颜色", Text, 10}, {"型钢线密度", Float32}, {"型钢吨价格", Float32},
};
constexpr Column kPanelColumns[] = {
    {"厂家编号", Int32}, {"编号", Int32},     {"玻璃名称", Text, 20}, {"玻璃长", Int32},
    {"玻璃宽", Int32},   {"玻璃厚度", Int32}, {"玻璃颜色", Text, 10}, {"玻璃平方单价", Float32},
};
constexpr Column kFittingColumns[] = {
    {"厂家编号", Int32},    {"编号", Int32},        {"配件名称", Text, 20},
    {"配件规格", Text, 20}, {"配件单位", Text, 10}, {"配件单价", Float32},
};
constexpr Column kWindowMakerColumns[] = {
    {"编号", Int32},
    {"名称", Text, 50},
};
constexpr Column kWindowSeriesColumns[] = {
    {"厂家编号", Int32},
    {"编号", Int32},
    {"名称", Text, 50},
};
constexpr Column kWindowTypeColumns[] = {
    {"系列编号", Int32}, {"编号", Int32}, {"名称", Text, 50}, {"图名", Text, 50}, {"图号", Int32},
};
constexpr Column kProfileRowColumns[] = {
    {"窗号", Int32},    {"编号", Int32},    {"名称", Text, 50},
    {"规格", Text, 50}, {"数量", Text, 50}, {"计算公式", Text, 50},
};
constexpr Column kSteelRowColumns[] = {
    {"窗号", Int32},    {"编号", Int32},    {"名称", Text, 50},
    {"规格", Text, 50}, {"数量", Text, 50}, {"计算公式", Text, 50},
};
constexpr Column kPanelRowColumns[] = {
    {"窗号", Int32}, {"编号", Int32},      {"名称", Text, 50},
    {"数量", Int32}, {"长公式", Text, 50}, {"宽公式", Text, 50},
};
constexpr Column kFittingRowColumns[] = {
    {"窗号", Int32},    {"编号", Int32},     {"名称", Text, 50},
    {"规格", Text, 50}, {"数量", Text, 100}, {"单位", Text, 10},
};
constexpr Column kDrawingColumns[] = {
    {"编号", Int32},
    {"图名", Text, 50},
};
constexpr Column kLineColumns[] = {
    {"X1", Float32}, {"Y1", Float32}, {"X2", Float32}, {"Y2", Float32}, {"Bn", Int32},
};
constexpr Column kRectangleColumns[] = {
    {"x1", Float32}, {"y1", Float32}, {"x2", Float32}, {"y2", Float32}, {"Bn", Int32},
};
constexpr Column kArrowColumns[] = {
    {"X1", Float32}, {"Y1", Float32}, {"X2", Float32}, {"Y2", Float32}, {"Bn", Int32},
};
constexpr Column kDimColumns[] = {
    {"X1", Float32}, {"Y1", Float32}, {"X2", Float32}, {"Y2", Float32},
    {"X3", Float32}, {"Y3", Float32}, {"Bn", Int32},
};
constexpr Column kArcColumns[] = {
    {"x1", Float32}, {"y1", Float32}, {"x2", Float32}, {"y2", Float32},
    {"x3", Float32}, {"y3", Float32}, {"Bn", Int32},
};
constexpr Column kStringsColumns[] = {
    {"X1", Float32},
    {"Y1", Float32},
    {"Chars", Text, 50},
    {"Bn", Int32},
};
constexpr Column kProjectColumns[] = {
    {"编号", Int32},        {"合同编号", Text, 18}, {"工程名称", Text, 50},
    {"工程地点", Text, 50}, {"甲方单位", Text, 50},
};
constexpr Column kContractColumns[] = {
    {"T1", Text, 50}, {"T2", Text, 50}, {"T3", Text, 50}, {"T4", Text, 50}, {"T5", Text, 50},
    {"T6", Text, 50}, {"T7", Memo},     {"T8", Memo},     {"T9", Memo},     {"T10", Memo},
    {"T11", Memo},    {"T12", Memo},    {"T13", Memo},    {"BT", Text, 50}, {"HTBN", Int32},
};
constexpr Column kProjectWindowColumns[] = {
    {"工程编号", Int32},    {"门窗编号", Int32}, {"编号", Int32},    {"门窗名称", Text, 50},
    {"门窗类型", Text, 50}, {"洞口宽", Int32},   {"洞口高", Int32},  {"制作尺寸", Text, 50},
    {"樘数", Int16},        {"说明", Text, 50},  {"图名", Text, 50},
};
constexpr Column kPlainLabelColumns[] = {
    {"px", Int32}, {"py", Int32}, {"schar", Text, 50}, {"Mcnum", Int32}, {"MC", Text, 5},
};
constexpr Column kMemberLabelColumns[] = {
    {"MCBN", Int32},   {"CBN", Int32}, {"MC", Text, 50}, {"MCZ", Text, 50},
    {"CMC", Text, 50}, {"px", Int32},  {"py", Int32},    {"Count", Int16},
};
constexpr Column kOutXCColumns[] = {
    {"编号", Int32}, {"名称", Text, 50}, {"规格", Text, 50}, {"长度", Float32}, {"数量", Int32},
};
constexpr Column kOutXGColumns[] = {
    {"编号", Int32}, {"名称", Text, 50}, {"规格", Text, 50}, {"长度", Float32}, {"数量", Int32},
};
constexpr Column kOutPCColumns[] = {
    {"编号", Int32}, {"名称", Text, 50}, {"长", Float32}, {"宽", Float32}, {"数量", Int32},
};
constexpr Column kOutPJColumns[] = {
    {"编号", Int32}, {"名称", Text, 50}, {"规格", Text, 50}, {"数量", Int32}, {"单位", Text, 50},
};
constexpr Column kOutTJColumns[] = {
    {"名称", Text, 50}, {"规格", Text, 50}, {"单价", Float32}, {"BN", Int32},
    {"DW", Text, 13},   {"金额", Money},    {"数量", Money},
};
constexpr Column kOutJSColumns[] = {
    {"XH", Text, 50}, {"LX", Text, 50}, {"Width", Int32}, {"Height", Int32}, {"Count", Int32},
    {"Mj", Float32},  {"JE", Money},    {"DJ", Money},    {"BN", Int32},
};
constexpr Column kOutTitleColumns[] = {
    {"标题名称", Text, 50}, {"工程名称", Text, 50}, {"发包单位", Text, 50},
    {"制作单位", Text, 50}, {"日期", Text, 50},
};
constexpr Column kDemandColumns[] = {
    {"编号", Int32}, {"名称", Text, 50}, {"规格", Text, 50}, {"长度", Int32}, {"数量", Int32},
};
constexpr Column kPlanColumns[] = {
    {"材料名称", Text, 50}, {"切割规格", Text, 100}, {"数量", Int32},
    {"优化比率", Float32},  {"剩余料长", Float32},
};

constexpr Table kMainTables[] = {
    {"材料厂家", kMaterialMakerColumns, {"编号"}},
    {"型材系列", kProfileSeriesColumns, {"编号"}},
    {"型材", kProfileColumns, {"编号", "型材型号"}},
    {"型钢", kSteelColumns, {"编号", "型钢规格"}},
    {"玻璃", kPanelColumns, {"编号", "玻璃名称"}},
    {"配件", kFittingColumns, {"编号", "配件规格"}},
    {"门窗厂家", kWindowMakerColumns, {"编号"}},
    {"门窗系列", kWindowSeriesColumns, {"编号"}},
    {"门窗", kWindowTypeColumns, {"编号", "系列编号"}},
    {"窗型材", kProfileRowColumns, {"窗号", "编号"}},
    {"窗型钢", kSteelRowColumns, {"窗号", "编号"}},
    {"窗板材", kPanelRowColumns, {"窗号", "编号"}},
    {"窗配件", kFittingRowColumns, {"窗号", "编号"}},
    {"图", kDrawingColumns, {"编号"}},
    {"Line", kLineColumns, {"Bn"}},
    {"Rectangle", kRectangleColumns, {"Bn"}},
    {"Arrow", kArrowColumns, {"Bn"}},
    {"Dim", kDimColumns, {"Bn"}},
    {"arc", kArcColumns, {"Bn"}},
    {"Strings", kStringsColumns, {"Bn"}},
    {"工程", kProjectColumns, {"编号"}},
    {"工程合同", kContractColumns, {"HTBN"}},
    {"工程门窗", kProjectWindowColumns, {"工程编号", "编号"}},
    {"标注", kPlainLabelColumns, {"Mcnum"}},
    {"标注2", kMemberLabelColumns, {"MCBN"}},
    {"OutXC", kOutXCColumns, {}},
    {"OutXG", kOutXGColumns, {}},
    {"OutPC", kOutPCColumns, {}},
    {"OutPJ", kOutPJColumns, {}},
    {"OutTJ", kOutTJColumns, {}},
    {"OutJS", kOutJSColumns, {}},
    {"OutTitle", kOutTitleColumns, {}},
    {"优化数据", kDemandColumns, {}},
    {"优化结果", kPlanColumns, {}},
};

constexpr Column kEnterNoteColumns[] = {
    {"单据编号", Int32}, {"来料来源", Text, 50}, {"采购金额", Float32},  {"用途", Text, 50},
    {"说明", Text, 50},  {"采购员", Text, 10},   {"采购日期", DateTime},
};
constexpr Column kEnterNoteRowColumns[] = {
    {"单据编号", Int32}, {"名称", Text, 50}, {"规格", Text, 50}, {"单位", Text, 50},
    {"单价", Float32},   {"数量", Int32},    {"种类", Text, 50},
};
constexpr Column kPostNoteColumns[] = {
    {"单据编号", Int32}, {"用途", Text, 50}, {"说明", Text, 50}, {"仓管员", Text, 50}, {"出库日期", DateTime},
};
constexpr Column kPostNoteRowColumns[] = {
    {"单据编号", Int32}, {"名称", Text, 50}, {"规格", Text, 50},
    {"单位", Text, 50},  {"数量", Int32},    {"种类", Text, 50},
};
constexpr Column kStockColumns[] = {
    {"名称", Text, 50}, {"规格", Text, 50}, {"厂家", Text, 50}, {"单位", Text, 50},
    {"种类", Text, 50}, {"入库量", Int32},  {"库存量", Int32},
};

constexpr Table kStockTables[] = {
    {"入库单", kEnterNoteColumns, {"单据编号"}}, {"入库单子表", kEnterNoteRowColumns, {"单据编号"}},
    {"出库单", kPostNoteColumns, {"单据编号"}},  {"出库单子表", kPostNoteRowColumns, {"单据编号"}},
    {"库存表", kStockColumns, {"名称", "规格"}},
};

constexpr Column kUserColumns[] = {
    {"userNm", Text, 8},
    {"userPwd", Text, 50},
    {"userAuth", Text, 50},
};

constexpr Table kUsersTables[] = {
    {"user", kUserColumns, {}},
};

constexpr Column kMinimumColumns[] = {
    {"规格", Text, 50},
    {"最低量", Int32},
};

constexpr Table kOwnTables[] = {
    {"最低库存", kMinimumColumns, {"规格"}},
};

}  // namespace

std::span<const Table> TablesOf(StoreKind kind) {
    switch (kind) {
        case StoreKind::Main:
            return kMainTables;
        case StoreKind::Stock:
            return kStockTables;
        case StoreKind::Users:
            return kUsersTables;
        case StoreKind::Own:
            return kOwnTables;
        case StoreKind::Backup:
        case StoreKind::Legacy:
            break;
    }
    return {};
}

const Table* FindTable(std::string_view name) {
    for (const StoreKind kind : {StoreKind::Main, StoreKind::Stock, StoreKind::Users, StoreKind::Own}) {
        for (const Table& table : TablesOf(kind)) {
            if (EqualIgnoringCase(table.name, name)) return &table;
        }
    }
    return nullptr;
}

const Column* FindColumn(const Table& table, std::string_view name) {
    for (const Column& column : table.columns) {
        if (EqualIgnoringCase(column.name, name)) return &column;
    }
    return nullptr;
}

}  // namespace kalvane
