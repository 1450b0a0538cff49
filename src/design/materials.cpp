#include "design/materials.h"

#include "store/helpers.h"

namespace kalvane {
namespace {

constexpr const char* kProfileMaker = "1";
constexpr const char* kProfileSeries = "5";

/// Where the materials of a kind of node stand, and their columns in the order of the list.
struct Source {
    const char* kind;
    MaterialClass materialClass;
    const char* select;
    std::vector<std::string> columns;
    std::vector<std::string> headings;
};

const std::vector<Source>& Sources() {
    static const std::vector<Source> sources = {
        {"2",
         MaterialClass::Steel,
         "Select * from 型钢 where 厂家编号=",
         {"型钢名称", "型钢规格", "型钢长度", "型钢厚度", "型钢颜色", "型钢线密度", "型钢吨价格", "厂家编号",
          "编号"},
         {"型钢名称", "型钢规格", "型钢长度mm", "型钢厚度mm", "型钢颜色", "型钢线密度", "型钢吨价格(元)",
          "厂家编号", "编号"}},
        {"3",
         MaterialClass::Panel,
         "Select * from 玻璃 where 厂家编号=",
         {"玻璃名称", "玻璃长", "玻璃宽", "玻璃厚度", "玻璃颜色", "玻璃平方单价", "厂家编号", "编号"},
         {"板材名称", "板材长mm", "板材宽mm", "板材厚度mm", "板材颜色", "板材平方单价", "厂家编号", "编号"}},
        {"4",
         MaterialClass::Fitting,
         "Select * from 配件 where 厂家编号=",
         {"配件名称", "配件规格", "配件单位", "配件单价", "厂家编号", "编号"},
         {"配件名称", "配件规格", "配件单位", "配件单价", "厂家编号", "编号"}},
        {kProfileSeries,
         MaterialClass::Profile,
         "Select * from 型材 where 系列编号=",
         {"型材名称", "型材型号", "型材长度", "型材厚度", "型材颜色", "型材线密度", "型材吨价格", "系列编号",
          "编号"},
         {"型材名称", "型材规格", "型材长度mm", "型材厚度mm", "型材颜色", "型材线密度", "型材吨价格(元)",
          "系列编号", "编号"}},
    };
    return sources;
}

}  // namespace

std::vector<TreeNode> LoadMaterialTree(Connection& connection) {
    std::vector<TreeNode> makers;
    for (Cursor row = connection.OpenCursor("Select * from 材料厂家"); !row.Eof(); row.MoveNext()) {
        const std::string kind = row.Field("厂家类别").TextOrEmpty();
        const std::string id = row.Field("编号").TextOrEmpty();
        TreeNode maker{row.Field("厂家名称").TextOrEmpty(), MakeKey(kind, id)};
        if (KeyKind(maker.tag) == kProfileMaker) {
            Cursor series = connection.OpenCursor("Select * from 型材系列 where 厂家编号=" + id);
            for (; !series.Eof(); series.MoveNext()) {
                maker.children.push_back({series.Field("系列名称").TextOrEmpty(),
                                          MakeKey(kProfileSeries, series.Field("编号").TextOrEmpty())});
            }
        }
        makers.push_back(std::move(maker));
    }
    return makers;
}

MaterialList LoadMaterials(Connection& connection, const std::string& tag) {
    MaterialList list;
    for (const Source& source : Sources()) {
        if (KeyKind(tag) != source.kind) continue;
        list.materialClass = source.materialClass;
        list.headings = source.headings;
        for (Cursor row = connection.OpenCursor(source.select + KeyId(tag)); !row.Eof(); row.MoveNext()) {
            std::vector<std::string> texts;
            for (const std::string& column : source.columns) texts.push_back(row.Field(column).TextOrEmpty());
            list.rows.push_back(std::move(texts));
        }
    }
    return list;
}

Material MaterialOf(MaterialClass materialClass, const std::vector<std::string>& row) {
    Material material{materialClass, row[0], {}, {}};
    if (materialClass != MaterialClass::Panel) material.code = row[1];
    if (materialClass == MaterialClass::Fitting) material.unit = row[2];
    return material;
}

}  // namespace kalvane
