// The formula rows of a type: how they are loaded and saved, and what the designer's commands make of them.

#include "design/formula_edits.h"

#include "design/formula_designer.h"
#include "numeric/error.h"
#include "platform/files.h"
#include "support/main_store.h"
#include "support/refusal.h"

namespace kalvane::test {
namespace {

using enum MaterialClass;

TEST(FormulaEdits, AMaterialTakesThePlaceOfAnother) {
    EXPECT_EQ(RowOf({Profile, "框", "PK", ""}), (FormulaTexts{"框", "PK", "", ""}));
    EXPECT_EQ(RowOf({Panel, "白玻", "", ""}), (FormulaTexts{"白玻", "0", "", ""}));
    EXPECT_EQ(RowOf({Fitting, "合页", "HY", "个"}), (FormulaTexts{"合页", "HY", "", "个"}));

    FormulaTexts fitting{"锁", "S", "2", "把"};
    ReplaceMaterial(fitting, {Fitting, "合页", "HY", "个"});
    EXPECT_EQ(fitting, (FormulaTexts{"合页", "HY", "2", "个"}));

    std::vector<FormulaTexts> profiles = {
        {"框", "PK", "2", "B"}, {"框", "TL", "2", "B"}, {"框", "PK", "2", "H"}, {"扇", "PK", "4", "H"}};
    ReplaceMaterials(profiles, 2, {Profile, "框", "TL", ""});
    EXPECT_EQ(
        profiles,
        (std::vector<FormulaTexts>{
            {"框", "TL", "2", "B"}, {"框", "TL", "2", "B"}, {"框", "TL", "2", "H"}, {"扇", "PK", "4", "H"}}))
        << "only rows with the same name and code";
    std::vector<FormulaTexts> panels = {
        {"白玻", "1", "B", "H"}, {"白玻", "2", "b1", "H"}, {"磨砂", "1", "B", "H"}};
    ReplaceMaterials(panels, 0, {Panel, "钢化", "", ""});
    EXPECT_EQ(panels, (std::vector<FormulaTexts>{
                          {"钢化", "1", "B", "H"}, {"钢化", "2", "b1", "H"}, {"磨砂", "1", "B", "H"}}));
}

FormulaLists OneRowEach() {
    FormulaLists lists;
    lists[Profile] = {{"框a", "kh1", "kh1", "(b-2*(kh1-dz1)+sh1+lsh)/2-lsh+rhl"}};
    lists[Steel] = {{"钢", "GK", "2", "h-2*KH1"}};
    lists[Panel] = {{"白玻", "1", "b-kh1", "h"}};
    lists[Fitting] = {{"kh1", "kh1", "kh1", "kh1"}};
    return lists;
}

TEST(FormulaEdits, TheMacroPutsMeasuresIntoTheFormulas) {
    MacroValues values;
    EXPECT_EQ(MacroReplaced(OneRowEach(), values), OneRowEach());
    values[0] = "60";   // KH1
    values[6] = "10";   // DZ1
    values[2] = "20";   // SH1
    values[9] = "30";   // LSH
    values[11] = "12";  // RHL
    const FormulaLists after = MacroReplaced(OneRowEach(), values);
    EXPECT_EQ(after[Profile][0], (FormulaTexts{"框a", "kh1", "60", "(B-2*(60-10)+20+30)/2-30+12"}));
    EXPECT_EQ(after[Steel][0], (FormulaTexts{"钢", "GK", "2", "H-2*60"}));
    EXPECT_EQ(after[Panel][0], (FormulaTexts{"白玻", "1", "B-60", "H"}));
    EXPECT_EQ(after[Fitting][0], OneRowEach()[Fitting][0]) << "fittings stay";
    // One code after the other over the result: what KH1 puts in is a code itself. 0 is a value.
    values = {};
    values[0] = "sh1";
    values[2] = "0";
    EXPECT_EQ(MacroReplaced(OneRowEach(), values)[Steel][0][3], "H-2*0");
}

TEST(FormulaEdits, FindAndReplaceGoesByPlaceAndGivesCapitals) {
    const FormulaLists after = TextReplaced(OneRowEach(), {"KH1", "x", {false, true, false, false}});
    EXPECT_EQ(after[Profile][0], (FormulaTexts{"框a", "x", "kh1", "(b-2*(kh1-dz1)+sh1+lsh)/2-lsh+rhl"}));
    EXPECT_EQ(after[Fitting][0], (FormulaTexts{"kh1", "x", "kh1", "kh1"}));
    const FormulaLists none = TextReplaced(OneRowEach(), {"zz", "x", {true, false, false, true}});
    EXPECT_EQ(none[Profile][0], (FormulaTexts{"框A", "kh1", "kh1", "(B-2*(KH1-DZ1)+SH1+LSH)/2-LSH+RHL"}));

    const std::vector<FormulaChange> changes = ChangesBetween(OneRowEach(), none);
    ASSERT_EQ(changes.size(), 6U);  // 框a, the last column of profile, steel and panel, kh1 twice
    EXPECT_EQ(ChangeSummary(changes, 1), "将更改 6 处：\n门窗型材第1行 名称：框a → 框A\n……");
    EXPECT_EQ(ChangeSummary({}, 1), "没有要更改的内容。");
}

class FormulaDesignerTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(1,4,'框','PK','2','B')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(1,4,'框','PK',Null,'H')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(2,9,'扇','S','1','H')",
                "窗板材 (窗号,编号,名称,数量,长公式,宽公式) values(1,1,'白玻',1,'B','H')"});
    }
    FormulaDesigner Designer(const std::string& type) {
        return FormulaDesigner(*store_, type, shelf_, [this](const std::string& text) { reported_ += text; });
    }
    std::string AllRows() {
        return Rows("Select * from 窗型材") + "\n" + Rows("Select * from 窗板材") + "\n" +
               Rows("Select * from 窗配件");
    }

    RecoveryShelf shelf_{folder_.Path(), "unsaved-formulas-"};
    std::string reported_;
};

TEST_F(FormulaDesignerTest, SavingReplacesAllRowsOfTheType) {
    FormulaDesigner designer = Designer("1");
    EXPECT_EQ(designer.Lists()[Profile][1], (FormulaTexts{"框", "PK", "", "H"}));
    EXPECT_FALSE(designer.IsDirty());
    designer.Change([](FormulaLists& lists) { lists[Fitting].push_back({"锁", "S", "B/2", "把"}); });
    EXPECT_TRUE(designer.IsDirty());
    EXPECT_EQ(Rows("Select * from 窗配件"), "") << "not before Save";
    designer.Save();
    EXPECT_EQ(AllRows(), "2|9|扇|S|1|H\n1|10|框|PK|2|B\n1|11|框|PK||H\n1|1|白玻|1|B|H\n1|1|锁|S|B/2|把");
    EXPECT_FALSE(designer.IsDirty());
    designer.Change([](FormulaLists& lists) { lists = {}; });
    designer.Save();
    EXPECT_EQ(AllRows(), "2|9|扇|S|1|H\n\n");
}

TEST_F(FormulaDesignerTest, ARowThatIsRefusedEndsTheSaveAndKeepsTheLists) {
    struct {
        MaterialClass materialClass;
        FormulaTexts row;
    } const refused[] = {
        {Steel, {"钢'", "G", "1", "B"}}, {Panel, {"玻", "", "B", "H"}}, {Panel, {"玻", "x y", "B", "H"}}};
    for (const auto& each : refused) {
        FormulaDesigner designer = Designer("1");
        designer.Change([&](FormulaLists& lists) {
            lists[Profile].resize(1);
            lists[each.materialClass].push_back(each.row);
        });
        EXPECT_NE(Refusal([&] { designer.Save(); }), "") << each.row[0] << each.row[1];
        EXPECT_TRUE(designer.IsDirty());
        EXPECT_EQ(designer.Lists()[each.materialClass].back(), each.row);
        EXPECT_EQ(Rows("Select 名称,计算公式 from 窗型材 where 窗号=1"), "框|B")
            << "what came before it stays";
    }
}

TEST_F(FormulaDesignerTest, EveryCommandIsOneStepBackAndForth) {
    FormulaDesigner designer = Designer("1");
    const FormulaLists first = designer.Lists();
    designer.Change([](FormulaLists& lists) { lists[Profile].clear(); });
    designer.TakeOver("2");
    EXPECT_EQ(designer.Lists()[Profile], (std::vector<FormulaTexts>{{"扇", "S", "1", "H"}}));
    EXPECT_TRUE(designer.Lists()[Panel].empty());
    designer.Undo();
    EXPECT_TRUE(designer.Lists()[Profile].empty());
    designer.Undo();
    EXPECT_EQ(designer.Lists(), first);
    EXPECT_FALSE(designer.CanUndo());
    designer.Redo();
    designer.Redo();
    EXPECT_FALSE(designer.CanRedo());
    EXPECT_EQ(designer.Lists()[Profile][0][0], "扇");
    designer.Change([](FormulaLists&) {});
    designer.Undo();
    EXPECT_TRUE(designer.Lists()[Profile].empty()) << "a command that changed nothing is no step";
}

TEST_F(FormulaDesignerTest, WhatIsNotSavedWaitsOnTheShelf) {
    const FormulaTexts odd{"a\nb", "c\\n\td", "'", "窗型材"};
    {
        FormulaDesigner designer = Designer("1");
        designer.Change(
            [&](FormulaLists& lists) { lists[Fitting].push_back(odd); });  // and it ends, as by a kill
    }
    RecoveryShelf next(folder_.Path(), "unsaved-formulas-");
    ASSERT_TRUE(next.Offers());
    const UnsavedFormulas found = ReadUnsavedFormulas(next.Take());
    EXPECT_EQ(found.type, "1");
    EXPECT_EQ(found.lists[Fitting], std::vector<FormulaTexts>{odd});
    EXPECT_EQ(found.lists[Profile].size(), 2U);
    FormulaDesigner again(*store_, "1", next, [](const std::string&) {});
    again.Change([&](FormulaLists& lists) { lists = found.lists; });
    again.Abandon();
    EXPECT_FALSE(RecoveryShelf(folder_.Path(), "unsaved-formulas-").Offers());

    RecoveryShelf nowhere(folder_ / "none", "unsaved-formulas-");
    FormulaDesigner lost(*store_, "1", nowhere, [this](const std::string& text) { reported_ += text + "|"; });
    for (int i = 0; i < 2; ++i) lost.Change([](FormulaLists& lists) { lists[Profile].clear(); });
    EXPECT_EQ(std::count(reported_.begin(), reported_.end(), '|'), 1) << "reported once";
}

}  // namespace
}  // namespace kalvane::test
