#include "catalogue/catalogue.h"

#include "numeric/assertion.h"
#include "numeric/error.h"
#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

std::string Join(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text += part;
    return text;
}

std::string Value(const MaterialColumn& column, const std::string& text) {
    return column.isText ? "'" + text + "'" : text;
}

MaterialTexts TextsOf(const Cursor& row, const CatalogueClass& materialClass) {
    MaterialTexts texts;
    for (const MaterialColumn& column : materialClass.columns) {
        texts.push_back(row.Field(column.name).TextOrEmpty());
    }
    texts.push_back(row.Field(materialClass.parentColumn).TextOrEmpty());
    texts.push_back(row.Field("编号").TextOrEmpty());
    return texts;
}

void DeleteWhere(Connection& connection, std::string_view table, std::string_view column,
                 std::string_view number) {
    connection.Execute(Join({"Delete * from ", table, " where ", column, "=", number}));
}

void DeleteProfileMaker(Connection& connection, std::string_view maker) {
    Cursor series = connection.OpenCursor(Join({"Select 编号 from 型材系列 where 厂家编号=", maker}));
    for (; !series.Eof(); series.MoveNext()) {
        DeleteWhere(connection, "型材", "系列编号", series.Field(0).Text());
    }
    DeleteWhere(connection, "型材系列", "厂家编号", maker);
    DeleteWhere(connection, "材料厂家", "编号", maker);
}

}  // namespace

std::vector<TreeNode> LoadCatalogueTree(Connection& connection) {
    std::vector<TreeNode> makers;
    for (Cursor row = connection.OpenCursor("Select * from 材料厂家"); !row.Eof(); row.MoveNext()) {
        const std::string number = row.Field("编号").TextOrEmpty();
        TreeNode& maker = makers.emplace_back();
        maker.name = row.Field("厂家名称").TextOrEmpty();
        maker.tag = MakeKey(row.Field("厂家类别").TextOrEmpty(), number);
        if (KeyKind(maker.tag) != kProfileMakerKind) continue;
        Cursor series = connection.OpenCursor("Select * from 型材系列 where 厂家编号=" + number);
        for (; !series.Eof(); series.MoveNext()) {
            maker.children.push_back({series.Field("系列名称").TextOrEmpty(),
                                      MakeKey(kSeriesKind, series.Field("编号").TextOrEmpty())});
        }
    }
    return makers;
}

Maker LoadMaker(Connection& connection, std::string_view maker) {
    const Cursor row = connection.OpenCursor(Join({"Select * from 材料厂家 where 编号=", maker}));
    const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
    return {text("厂家名称"), text("联系电话"), text("厂址"), text("传真"), text("厂家类别")};
}

std::string AddMaker(Connection& connection, const Maker& maker) {
    std::string number;
    InCommand(connection, [&] {
        number = GetNextId(connection, "材料厂家");
        connection.Execute(Join({"Insert into 材料厂家 (编号,厂家名称,联系电话,厂址,传真,厂家类别) values(",
                                 number, ",'", maker.name, "','", maker.phone, "','", maker.address, "','",
                                 maker.fax, "','", maker.category, "')"}));
    });
    return number;
}

void UpdateMaker(Connection& connection, std::string_view number, const Maker& maker) {
    connection.Execute(Join({"update 材料厂家 set 厂家名称='", maker.name, "',联系电话='", maker.phone,
                             "',厂址='", maker.address, "',传真='", maker.fax, "',厂家类别='", maker.category,
                             "' Where 编号=", number}));
}

std::string AddSeries(Connection& connection, std::string_view maker, std::string_view name) {
    std::string number;
    InCommand(connection, [&] {
        number = GetNextId(connection, "型材系列");
        connection.Execute(Join({"Insert into 型材系列 (厂家编号,编号,系列名称) values (", maker, ",", number,
                                 ",'", name, "')"}));
    });
    return number;
}

void RenameSeries(Connection& connection, std::string_view series, std::string_view name) {
    connection.Execute(Join({"Update 型材系列 Set 系列名称='", name, "' Where 编号=", series}));
}

void DeleteCatalogueNode(Connection& connection, std::string_view tag) {
    const std::string kind = KeyKind(tag);
    const std::string number = KeyId(tag);
    InCommand(connection, [&] {
        if (kind == kProfileMakerKind) return DeleteProfileMaker(connection, number);
        const CatalogueClass* materialClass = ClassOfKind(kind);
        if (materialClass == nullptr) throw StoreError("不认识的厂家类别，不能删除。");
        DeleteWhere(connection, materialClass->table, materialClass->parentColumn, number);
        DeleteWhere(connection, kind == kSeriesKind ? "型材系列" : "材料厂家", "编号", number);
    });
}

std::vector<MaterialTexts> LoadMaterials(Connection& connection, const CatalogueClass& materialClass,
                                         std::string_view parent) {
    std::vector<MaterialTexts> materials;
    Cursor row = connection.OpenCursor(
        Join({"Select * from ", materialClass.table, " where ", materialClass.parentColumn, "=", parent}));
    for (; !row.Eof(); row.MoveNext()) materials.push_back(TextsOf(row, materialClass));
    return materials;
}

MaterialTexts LoadMaterial(Connection& connection, const CatalogueClass& materialClass,
                           std::string_view number) {
    return TextsOf(
        connection.OpenCursor(Join({"Select * from ", materialClass.table, " where 编号=", number})),
        materialClass);
}

std::string AddMaterial(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
                        const MaterialTexts& texts) {
    KALVANE_ASSERT(texts.size() >= materialClass.columns.size());
    std::string number;
    InCommand(connection, [&] {
        number = GetNextId(connection, materialClass.table);
        std::string columns = std::string(materialClass.parentColumn) + ",编号";
        std::string values = Join({parent, ",", number});
        for (std::size_t i = 0; i < materialClass.columns.size(); ++i) {
            columns += std::string(",") + materialClass.columns[i].name;
            values += "," + Value(materialClass.columns[i], texts[i]);
        }
        connection.Execute(
            Join({"Insert into ", materialClass.table, " (", columns, ") values(", values, ")"}));
    });
    return number;
}

void UpdateMaterial(Connection& connection, const CatalogueClass& materialClass, std::string_view number,
                    const MaterialTexts& texts) {
    KALVANE_ASSERT(texts.size() >= materialClass.columns.size());
    std::string sets;
    for (std::size_t i = 0; i < materialClass.columns.size(); ++i) {
        const MaterialColumn& column = materialClass.columns[i];
        sets += std::string(i == 0 ? "" : ",") + column.name + "=" + Value(column, texts[i]);
    }
    connection.Execute(Join({"Update ", materialClass.table, " set ", sets, " Where 编号=", number}));
}

void DeleteMaterial(Connection& connection, const CatalogueClass& materialClass, std::string_view number) {
    DeleteWhere(connection, materialClass.table, "编号", number);
}

void SetPrices(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
               std::string_view price) {
    connection.Execute(
        Join({"Update ", materialClass.table, " set ", materialClass.columns[materialClass.price].name, "=",
              price, " where ", materialClass.parentColumn, "=", parent}));
}

}  // namespace kalvane
