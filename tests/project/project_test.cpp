// Tests of the rows that projects and their windows write, change and take away.

#include "design/window_type_tree.h"
#include "numeric/error.h"
#include "project/project_list.h"
#include "project/project_windows.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

const std::string kWindowColumns =
    "Select 工程编号,门窗编号,编号,门窗名称,门窗类型,洞口宽,洞口高,制作尺寸,樘数,说明,图名 from 工程门窗";
const std::string kLabelColumns = "Select Mcnum,MC,px,py,schar from 标注";

using ProjectTest = MainStoreTest;

TEST_F(ProjectTest, ADeletedProjectTakesItsRowsAlong) {
    for (const char* name : {"甲", "乙"}) AddProject(*store_, {"", "", name, "", ""});
    for (const char* project : {"1", "2", "1"}) {
        AddWindow(*store_, {"C", "厅", "1", "2", "3", "", project, "4", ""}, {{{"B", "1", "2", "3"}}});
    }
    Insert({"工程合同 (T1,HTBN) values('供',1)", "工程合同 (T1,HTBN) values('供',2)",
            "标注2 (MCBN,MC) values(1,'B')", "标注2 (MCBN,MC) values(2,'B')"});
    DeleteProject(*store_, "1");  // windows 1 and 3
    for (const char* left : {"编号 from 工程", "编号 from 工程门窗", "Mcnum from 标注", "MCBN from 标注2",
                             "HTBN from 工程合同"}) {
        EXPECT_EQ(Rows(std::string("Select ") + left), "2") << left;
    }
    EXPECT_EQ(AddProject(*store_, {"", "", "丙", "", ""}), "3");
    DeleteProject(*store_, "3");  // no windows, no contract
    EXPECT_EQ(AddProject(*store_, {"", "", "丁", "", ""}), "3") << "the highest number is used again";
}

TEST_F(ProjectTest, AChangedWindowKeepsItsTypeAndADeletedOneTakesItsLabelsAlong) {
    const WindowEntry window{"C1", "东山墙", "1500", "1200", "32767", "0", "7", "5", ""};
    for (const char* number : {"1", "2"})
        EXPECT_EQ(AddWindow(*store_, window, {{{"B", "1", "2", "3"}}}), number);
    UpdateWindow(*store_, {"C9", "北", "1", "2", "3", "备", "8", "6", "1"},
                 {{{"K", "a+1", "4912", "7125.4"}}});
    EXPECT_EQ(Rows(kWindowColumns),
              "7|5|1|C9|北|1|2|~|3|备|~\n"
              "7|5|2|C1|东山墙|1500|1200|~|32767|0|~");
    EXPECT_EQ(Rows(kLabelColumns), "2|B|2|3|1\n1|K|4912|7125|a+1") << "positions in whole units";
    Insert({"标注2 (MCBN,MC) values(1,'B')"});
    DeleteWindow(*store_, "1");
    EXPECT_EQ(Rows("Select 编号 from 工程门窗") + Rows("Select MC from 标注") + Rows("Select MC from 标注2"),
              "2B");
}

TEST_F(ProjectTest, WhatTheStoreRefuses) {
    const LabelRow good{"H", "0", "1", "2"};
    const struct {
        std::string WindowEntry::*field;
        const char* text;  // put into that field
        LabelRow secondLabel;
        const char *windowsAfter, *labelsAfter;
    } cases[] = {
        {&WindowEntry::name, "C'1", good, "", ""},
        {&WindowEntry::count, "40000", good, "", ""},                         // beyond 16 bits
        {&WindowEntry::width, "3000000000", good, "", ""},                    // beyond 32 bits
        {&WindowEntry::note, "", {"框厚尺寸标注", "0", "1", "2"}, "1", "B"},  // six characters
        {&WindowEntry::note, "", {"H", "1'2", "1", "2"}, "1", "B"},
    };
    for (const auto& c : cases) {
        WindowEntry window{"C1", "厅", "1", "2", "3", "", "7", "5", ""};
        window.*c.field = c.text;
        const std::vector<LabelRow> labels = {{"B", "0", "1", "2"}, c.secondLabel};
        EXPECT_THROW(AddWindow(*store_, window, labels), StoreError) << c.text;
        EXPECT_EQ(Rows("Select 编号 from 工程门窗"), c.windowsAfter) << c.text;
        EXPECT_EQ(Rows("Select MC from 标注"), c.labelsAfter) << c.text;
        DeleteWindow(*store_, "1");
    }
}

TEST_F(ProjectTest, WindowTypesFormATree) {
    Insert({"门窗厂家 (编号,名称) values(2,'乙厂')", "门窗厂家 (编号,名称) values(1,'甲厂')",
            "门窗系列 (厂家编号,编号,名称) values(1,9,'80 系列')",
            "门窗系列 (厂家编号,编号,名称) values(1,3,'60 系列')",
            "门窗 (系列编号,编号,名称,图号) values(3,11,'b',40)",
            "门窗 (系列编号,编号,名称,图号) values(3,12,'a',41)"});
    std::string found;
    const std::function<void(const std::vector<TreeNode>&)> walk = [&](const std::vector<TreeNode>& nodes) {
        for (const TreeNode& node : nodes) {
            found += node.name + "=" + node.tag + "(";
            walk(node.children);
            found += ")";
        }
    };
    walk(LoadWindowTypes(*store_));
    EXPECT_EQ(found, "甲厂=11(60 系列=23(a=312()b=311())80 系列=29())乙厂=12()");
}

}  // namespace
}  // namespace kalvane::test
