// Prices that change as a whole, and materials that come from a spreadsheet.

#include "catalogue/material_sheet.h"

#include "catalogue/price_change.h"
#include "support/main_store.h"
#include "support/refusal.h"
#include "support/xlsx_reader.h"

namespace kalvane::test {
namespace {

TEST(PriceChange, IsRoundedToTheCent) {
    constexpr struct {
        const char* price;
        const char* percent;
        const char* changed;
    } cases[] = {
        {"10000", "5", "10500"}, {"9800", "-2.5", "9555"}, {"32.1", "10", "35.31"}, {"0.5", "1", "0.51"},
        {"1.15", "-50", "0.58"}, {"3.35", "0", "3.35"},    {"2.05", "10", "2.26"},  {"0", "7", "0"},
        {"1.005", "0", "1.01"},  {"1", "-99.9", "0"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(ChangedPrice(each.price, each.percent), each.changed) << each.price << " " << each.percent;
    }
    for (const char* percent : {"", "x", "-100", "1001", "1e999"}) {
        EXPECT_NE(Refusal([&] { ChangedPrice("1", percent); }), "") << percent;
    }
}

class MaterialSheetTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"配件 values(9,1,'锁','S-1','只',3.5)", "配件 values(9,2,'合页','H','付',2)",
                "配件 (厂家编号,编号,配件名称,配件规格) values(9,3,'空','K')",
                "配件 values(8,4,'锁','S-1','只',9)"});
    }

    const CatalogueClass& fittings_ = *ClassOfKind("4");
};

TEST_F(MaterialSheetTest, RaisesThePricesOfOneNode) {
    const PriceChange preview = PreviewPrices(*store_, fittings_, "9", "10");
    EXPECT_EQ(std::to_string(preview.count) + " " + preview.before + " " + preview.after, "2 3.5 3.85");
    RaisePrices(*store_, fittings_, "9", "10");
    EXPECT_EQ(Rows("Select 配件单价 from 配件"), "3.85\n2.2\n~\n9");
}

TEST_F(MaterialSheetTest, GoesOutAndComesBackChanged) {
    TableWorkbook({MaterialTable(fittings_, "甲厂", LoadMaterials(*store_, fittings_, "9"))})
        .Save(folder_ / "a.xlsx");
    EXPECT_EQ(XlsxReader(folder_ / "a.xlsx").Sheet(1).cells.substr(0, 69),
              "A1=甲厂|B1=|C1=|D1=\nA2=配件名称|B2=配件规格|C2=配件单位");
    SheetTexts sheet = ReadFirstSheet(folder_ / "a.xlsx", kMaterialSheetColumns);
    EXPECT_EQ(CompareSheet(*store_, fittings_, "9", sheet).refusals,
              (std::vector<std::string>{"第 5 行“配件单位”是空的", "第 5 行“配件单价”是空的"}));
    sheet.Set(5, 3, "个");
    sheet.Set(5, 4, "1.5");
    int column = 0;
    for (const char* text : {"把手", "B1", "只", "6"}) sheet.Set(6, ++column, text);
    sheet.Set(8, 1, "below the blank row");
    const MaterialChanges changes = CompareSheet(*store_, fittings_, "9", sheet);
    EXPECT_EQ(changes.same, 2);
    ApplyChanges(*store_, fittings_, "9", changes);
    EXPECT_EQ(Rows("Select * from 配件"),
              "9|1|锁|S-1|只|3.5\n9|2|合页|H|付|2\n9|3|空|K|个|1.5\n8|4|锁|S-1|只|9\n9|5|把手|B1|只|6");
}

TEST_F(MaterialSheetTest, FindsItsColumnsByTheirHeadings) {
    SheetTexts sheet;
    const char* const cells[] = {"配件单价", "配件名称", "备注", "配件单位", "配件规格",
                                 "两元",     "锁'",      "",     "只",       "123456789012345678901"};
    for (int i = 0; i < 10; ++i) sheet.Set(3 + i / 5, 1 + i % 5, cells[i]);
    EXPECT_EQ(CompareSheet(*store_, fittings_, "9", sheet).refusals,
              (std::vector<std::string>{"第 4 行“配件名称”含有单引号“'”", "第 4 行“配件规格”超过 20 个字符",
                                        "第 4 行“配件单价”“两元”不是数字"}));
    sheet.Set(3, 4, "单位");
    EXPECT_NE(Refusal([&] { CompareSheet(*store_, fittings_, "9", sheet); }).find("“配件单位”"),
              std::string::npos);
    EXPECT_NE(Refusal([&] { CompareSheet(*store_, *ClassOfKind("5"), "9", sheet); }).find("“型材名称”"),
              std::string::npos);
}

}  // namespace
}  // namespace kalvane::test
