// Tests of the rows that projects and their windows write, change and take away.

#include <gtest/gtest.h>

#include "drawing/primitive_list.h"
#include "platform/error.h"
#include "project/project_list.h"
#include "project/project_windows.h"
#include "project/window_type_tree.h"
#include "store/store_files.h"
#include "support/store_rows.h"
#include "support/temp_folder.h"

namespace kalvane {
namespace {

const std::string kWindowColumns =
    "Select 工程编号,门窗编号,编号,门窗名称,门窗类型,洞口宽,洞口高,制作尺寸,樘数,说明,图名 from 工程门窗";
const std::string kLabelColumns = "Select Mcnum,MC,px,py,schar from 标注";

class ProjectTest : public testing::Test {
  protected:
    std::string Rows(const std::string& sql) { return test::Rows(store_, sql); }

    const test::TempFolder folder_;
    const std::filesystem::path file_ = [this] {
        CreateStore(folder_ / kMainStoreName, StoreKind::Main);
        return folder_ / kMainStoreName;
    }();
    Connection store_{file_, StoreKind::Main};
};

TEST_F(ProjectTest, ProjectsAreNumberedListedAndChanged) {
    EXPECT_TRUE(ListProjects(store_).empty());
    EXPECT_EQ(AddProject(store_, {"", "HT-1", "甲楼", "东街", "甲公司"}), "1");
    EXPECT_EQ(AddProject(store_, {"99", "HT-1", "甲楼", "东街", "甲公司"}), "2") << "no names are unique";
    UpdateProject(store_, {"1", "HT-2", "乙楼", "西街", "乙公司"});
    EXPECT_THROW(UpdateProject(store_, {"1", "HT-3", "丙'楼", "", ""}), StoreError);
    EXPECT_THROW(AddProject(store_, {"", "1234567890123456789", "长", "", ""}), StoreError);
    EXPECT_EQ(Rows("Select 编号,合同编号,工程名称,工程地点,甲方单位 from 工程"),
              "1|HT-2|乙楼|西街|乙公司\n2|HT-1|甲楼|东街|甲公司");
    EXPECT_EQ(ListProjects(store_).at(0).client, "乙公司");
}

TEST_F(ProjectTest, ADeletedProjectTakesItsRowsAlong) {
    for (const char* name : {"甲", "乙"}) AddProject(store_, {"", "", name, "", ""});
    for (const char* project : {"1", "2", "1"}) {
        AddWindow(store_, {"C", "厅", "1", "2", "3", "", project, "4", ""}, {{{"B", "1", "2", "3"}}});
    }
    for (const char* number : {"1", "2"}) {
        store_.Execute(std::string("Insert into 工程合同 (T1,HTBN) values('供',") + number + ")");
        store_.Execute(std::string("Insert into 标注2 (MCBN,MC) values(") + number + ",'B')");
    }
    DeleteProject(store_, "1");  // windows 1 and 3
    EXPECT_EQ(Rows("Select 编号 from 工程"), "2");
    EXPECT_EQ(Rows("Select 编号 from 工程门窗"), "2");
    EXPECT_EQ(Rows("Select Mcnum from 标注"), "2");
    EXPECT_EQ(Rows("Select MCBN from 标注2"), "2");
    EXPECT_EQ(Rows("Select HTBN from 工程合同"), "2");
    EXPECT_EQ(AddProject(store_, {"", "", "丙", "", ""}), "3");
    DeleteProject(store_, "3");  // no windows, no contract
    EXPECT_EQ(AddProject(store_, {"", "", "丁", "", ""}), "3") << "the highest number is used again";
}

TEST_F(ProjectTest, AWindowCarriesItsLabels) {
    const WindowEntry window{"C1", "东山墙", "1500", "1200", "32767", "0", "7", "5", ""};
    EXPECT_EQ(AddWindow(store_, window, {{{"B", "1500", "4912", "7125.4"}, {"H", "a+1", "10", "20"}}}), "1");
    EXPECT_EQ(AddWindow(store_, window, {}), "2");
    EXPECT_EQ(Rows(kWindowColumns),
              "7|5|1|C1|东山墙|1500|1200|~|32767|0|~\n"
              "7|5|2|C1|东山墙|1500|1200|~|32767|0|~");
    EXPECT_EQ(Rows(kLabelColumns), "1|B|4912|7125|1500\n1|H|10|20|a+1") << "positions in whole units";

    UpdateWindow(store_, {"C9", "北", "1", "2", "3", "备", "8", "6", "1"}, {{{"K", "5", "1", "2"}}});
    EXPECT_EQ(Rows(kWindowColumns + " where 编号=1"), "7|5|1|C9|北|1|2|~|3|备|~") << "the type stays";
    EXPECT_EQ(Rows(kLabelColumns), "1|K|1|2|5");
    EXPECT_EQ(LoadLabels(store_, "1").at(0).value, "5");

    store_.Execute("Insert into 标注2 (MCBN,MC) values(1,'B')");
    const std::vector<WindowEntry> listed = ListWindows(store_, "7");
    ASSERT_EQ(listed.size(), 2U);
    EXPECT_EQ(listed[0].note, "备");
    EXPECT_FALSE(listed[0].IsComposite());
    WindowEntry composite;
    composite.typeNumber = "-5";
    EXPECT_TRUE(composite.IsComposite());
    DeleteWindow(store_, "1");
    EXPECT_EQ(Rows("Select 编号 from 工程门窗") + Rows(kLabelColumns) + Rows("Select MC from 标注2"), "2");
}

TEST_F(ProjectTest, WhatTheStoreRefuses) {
    struct Case {
        const char* what;
        WindowEntry window;
        LabelRow secondLabel;
        const char* windowsAfter;
        const char* labelsAfter;
    };
    const WindowEntry good{"C1", "厅", "1", "2", "3", "", "7", "5", ""};
    const auto with = [&good](std::string WindowEntry::*field, const char* text) {
        WindowEntry window = good;
        window.*field = text;
        return window;
    };
    const LabelRow label{"H", "0", "1", "2"};
    const Case cases[] = {
        {"a quote in the name", with(&WindowEntry::name, "C'1"), label, "", ""},
        {"a count beyond 16 bits", with(&WindowEntry::count, "40000"), label, "", ""},
        {"a width beyond 32 bits", with(&WindowEntry::width, "3000000000"), label, "", ""},
        {"a label's name of six characters", good, {"框厚尺寸标注", "0", "1", "2"}, "1", "B"},
        {"a quote in a label's value", good, {"H", "1'2", "1", "2"}, "1", "B"},
    };
    for (const Case& c : cases) {
        const std::vector<LabelRow> labels = {{"B", "0", "1", "2"}, c.secondLabel};
        EXPECT_THROW(AddWindow(store_, c.window, labels), StoreError) << c.what;
        EXPECT_EQ(Rows("Select 编号 from 工程门窗"), c.windowsAfter) << c.what;
        EXPECT_EQ(Rows("Select MC from 标注"), c.labelsAfter) << c.what;
        DeleteWindow(store_, "1");
    }
}

TEST_F(ProjectTest, WindowTypesFormATree) {
    for (const char* sql : {
             "Insert into 门窗厂家 (编号,名称) values(2,'乙厂')",
             "Insert into 门窗厂家 (编号,名称) values(1,'甲厂')",
             "Insert into 门窗系列 (厂家编号,编号,名称) values(1,9,'80 系列')",
             "Insert into 门窗系列 (厂家编号,编号,名称) values(1,3,'60 系列')",
             "Insert into 门窗 (系列编号,编号,名称,图号) values(3,11,'b',40)",
             "Insert into 门窗 (系列编号,编号,名称,图号) values(3,12,'a',41)",
         }) {
        store_.Execute(sql);
    }
    std::string found;
    const std::function<void(const std::vector<TypeNode>&)> walk = [&](const std::vector<TypeNode>& nodes) {
        for (const TypeNode& node : nodes) {
            found += node.name + "=" + node.tag + "(";
            walk(node.children);
            found += ")";
        }
    };
    walk(LoadWindowTypes(store_));
    EXPECT_EQ(found, "甲厂=11(60 系列=23(a=312()b=311())80 系列=29())乙厂=12()");
    FieldSlots slots;
    EXPECT_EQ(DrawingOfWindowType(store_, "12", slots), "41");
    EXPECT_THROW(DrawingOfWindowType(store_, "13", slots), StoreError);

    PrimitiveList<TextItem> texts;
    texts.Add({{4912.5F, 7125}, "B"});
    const std::vector<LabelRow> labels = LabelsOfDrawing(texts);
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_EQ(labels[0].name + labels[0].value + "@" + labels[0].x + "," + labels[0].y, "B0@4912.5,7125");
}

}  // namespace
}  // namespace kalvane
