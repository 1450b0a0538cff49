#include "catalogue/catalogue.h"

#include <algorithm>

#include "catalogue/material_uses.h"
#include "support/main_store.h"
#include "support/refusal.h"

namespace kalvane::test {
namespace {

std::string Outline(const std::vector<TreeNode>& nodes) {
    std::string text;
    for (const TreeNode& node : nodes) {
        text += node.tag + node.name;
        if (!node.children.empty()) text += "(" + Outline(node.children) + ")";
        text += " ";
    }
    return text;
}

class CatalogueTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"材料厂家 values(4,'型厂','1','街','2','1')", "材料厂家 values(2,'钢厂','-','-','-','2')",
                "材料厂家 values(3,'板厂','-','-','-','3')", "材料厂家 values(9,'配厂','-','-','-','4')",
                "型材系列 values(4,7,'推拉')", "型材系列 values(4,5,'平开')", "型材系列 values(3,6,'无')",
                "型材 values(7,1,'框','GK60',6000,2.3,'白',1.05,9800)",
                "型材 values(5,2,'框','GK60',6000,2.3,'白',1.05,9800)",
                "型材 values(8,3,'余','X',6000,2,'-',1,1)",
                "型钢 values(2,1,'钢衬','G1',6000,'1.5','-',0.9,5000)",
                "玻璃 values(3,1,'白玻',2000,1500,5,'-',32)", "配件 values(9,1,'锁','S-1','只',3.5)"});
    }
    static const CatalogueClass& Of(const char* kind) { return *ClassOfKind(kind); }
};

TEST_F(CatalogueTest, OnlyMakersOfProfilesHaveSeries) {
    EXPECT_EQ(Outline(LoadCatalogueTree(*store_)), "14型厂(57推拉 55平开 ) 22钢厂 33板厂 49配厂 ");
}

TEST_F(CatalogueTest, EachClassIsAddedListedChangedAndDeleted) {
    const struct {
        const char* kind;
        const char* parent;
        MaterialTexts texts;
        MaterialTexts listed;  ///< with the number of the node and its own
    } cases[] = {
        {"5",
         "7",
         {"扇", "SK60", "6000", "2.5", "白", "0.95", "9800"},
         {"扇", "SK60", "6000", "2.5", "白", "0.95", "9800", "7", "4"}},
        {"2",
         "2",
         {"钢", "G2", "5800", "1.2", "-", "1", "05200.50"},
         {"钢", "G2", "5800", "1.2", "-", "1", "5200.5", "2", "2"}},
        {"3",
         "3",
         {"中空", "2000", "1800", "20", "-", "88"},
         {"中空", "2000", "1800", "20", "-", "88", "3", "2"}},
        {"4", "9", {"合页", "H1", "付", "2"}, {"合页", "H1", "付", "2", "9", "2"}},
    };
    for (const auto& each : cases) {
        const CatalogueClass& ofKind = Of(each.kind);
        const std::string number = AddMaterial(*store_, ofKind, each.parent, each.texts);
        EXPECT_EQ(LoadMaterials(*store_, ofKind, each.parent).back(), each.listed);
        MaterialTexts changed = each.texts;
        changed[ofKind.code] = "NEW";
        changed[ofKind.price] = "1";
        UpdateMaterial(*store_, ofKind, number, changed);
        const MaterialTexts row = LoadMaterial(*store_, ofKind, number);
        EXPECT_EQ(row[ofKind.code] + " " + row[ofKind.price], "NEW 1");
        changed[ofKind.price] = "1.2.3";
        EXPECT_NE(Refusal([&] { UpdateMaterial(*store_, ofKind, number, changed); }), "");
        SetPrices(*store_, ofKind, each.parent, "77");
        for (const MaterialTexts& material : LoadMaterials(*store_, ofKind, each.parent)) {
            EXPECT_EQ(material[ofKind.price], "77");
        }
        DeleteMaterial(*store_, ofKind, number);
        EXPECT_NE(Refusal([&] { LoadMaterial(*store_, ofKind, number); }), "");
    }
    EXPECT_EQ(Rows("Select 型材吨价格 from 型材 where 系列编号=5"), "9800")
        << "other nodes keep their prices";
    EXPECT_NE(Refusal([&] { AddMaterial(*store_, Of("4"), "9", {"a'b", "c", "只", "1"}); }), "");
}

TEST_F(CatalogueTest, MakersAndSeriesAreAddedAndChanged) {
    EXPECT_EQ(AddMaker(*store_, {"新", "-", "-", "-", "4"}), "10");
    Maker maker = LoadMaker(*store_, "4");
    EXPECT_EQ(maker.name + maker.phone + maker.address + maker.fax + maker.category, "型厂1街21");
    maker.category = "3";
    UpdateMaker(*store_, "4", maker);
    EXPECT_EQ(Rows("Select * from 材料厂家 where 编号=4"), "4|型厂|1|街|2|3");
    EXPECT_EQ(AddSeries(*store_, "4", "三"), "8");
    RenameSeries(*store_, "8", "四");
    EXPECT_EQ(Rows("Select * from 型材系列 where 编号=8"), "4|8|四");
}

TEST_F(CatalogueTest, ANodeIsDeletedWithAllBelowIt) {
    const struct {
        const char* tag;
        const char* left;  ///< makers, series, profiles, steels, panels, fittings
    } cases[] = {
        {"57", "4 2 3 9|5 6|2 3|1|1|1|"},
        {"14", "2 3 9|6|3|1|1|1|"},
        {"22", "3 9|6|3||1|1|"},
        {"33", "9|6|3|||1|"},
        {"49", "|6|3||||"},
    };
    for (const auto& each : cases) {
        DeleteCatalogueNode(*store_, each.tag);
        std::string left;
        for (const char* table : {"材料厂家", "型材系列", "型材", "型钢", "玻璃", "配件"}) {
            std::string numbers = Rows(std::string("Select 编号 from ") + table);
            std::replace(numbers.begin(), numbers.end(), '\n', ' ');
            left += numbers + "|";
        }
        EXPECT_EQ(left, each.left) << each.tag;
    }
}

TEST_F(CatalogueTest, UsesAreFoundByTheTextThatFormulasQuote) {
    Insert({"门窗厂家 values(1,'甲')", "门窗系列 values(1,2,'系')",
            "门窗 (系列编号,编号,名称) values(2,5,'乙窗')", "门窗 (系列编号,编号,名称) values(2,4,'甲窗')",
            "窗型材 values(5,1,'框','GK60','1','B')", "窗型材 values(4,2,'框','GK60','1','B')",
            "窗型材 values(5,3,'扇','GK60','1','H')", "窗型材 values(4,4,'框','gk60','1','B')",
            "窗型钢 values(4,1,'框','GK60','1','B')", "窗板材 values(5,1,'白玻',1,'B','H')",
            "窗配件 values(5,1,'锁','X','1','只')"});
    EXPECT_EQ(UsesText("GK60", UsesOfMaterial(*store_, Of("5"), "GK60")),
              "2 个窗型的公式引用“GK60”：\n甲 → 系 → 甲窗：1 行\n甲 → 系 → 乙窗：2 行");
    EXPECT_EQ(UsesText("白玻", UsesOfMaterial(*store_, Of("3"), "白玻")),
              "1 个窗型的公式引用“白玻”：\n甲 → 系 → 乙窗：1 行");
    EXPECT_EQ(UsesText("S-1", UsesOfMaterial(*store_, Of("4"), "S-1")), "没有窗型的公式引用“S-1”。");
    EXPECT_EQ(TypesThatQuote(*store_, "14"), 2);
    EXPECT_EQ(TypesThatQuote(*store_, "22"), 0);
    EXPECT_EQ(TypesThatQuote(*store_, "33"), 1);
}

}  // namespace
}  // namespace kalvane::test
