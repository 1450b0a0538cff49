// The list, the tree and the entry form that all screens are made of.

#include "numeric/error.h"
#include "support/screens/screen_kit.h"
#include "ui/entry_form.h"
#include "ui/node_tree.h"

namespace kalvane::test {
namespace {

class ListsTest : public ScreenTest {
  protected:
    static std::string Cells(const ReportList& list, int column) {
        QStringList cells;
        for (int row = 0; row < list.RowCount(); ++row) cells << list.Text(row, column);
        return cells.join(QLatin1Char(' ')).toStdString();
    }
    static void ClickHeading(ReportList& list, int column) {
        const int x = list.header()->sectionViewportPosition(column) + 5;
        QTest::mouseClick(list.header()->viewport(), Qt::LeftButton, {}, {x, 5});
    }
};

TEST_F(ListsTest, AHeadingSortsUpDownAndBack) {
    QDialog screen;
    ReportList list("L", {"a", "b", "id"}, &screen);
    list.SetColumns({"a", "b", "id"}, 1);
    list.AddRows({{"x", "10", "1"}, {"y", "9.5", "2"}, {"z", "无", "3"}, {"w", "9.5", "4"}});
    list.resize(300, 200);
    screen.show();
    EXPECT_EQ(list.SelectedRow(), 0) << "the first row, on opening";
    const char* const orders[] = {"2 4 1 3", "3 1 2 4", "1 2 3 4"};  // equal ones keep their order
    for (const char* order : orders) {
        ClickHeading(list, 1);
        EXPECT_EQ(Cells(list, 2), order);
        EXPECT_EQ(list.Text(list.SelectedRow(), 0), "x") << "the selected row stays selected";
    }
    list.SelectSeveral();
    list.selectAll();
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "x\t10\ny\t9.5\nz\t无\nw\t9.5")
        << "without the hidden column";
    list.KeepOrder();
    ClickHeading(list, 0);
    EXPECT_EQ(Cells(list, 2), "1 2 3 4");
}

TEST_F(ListsTest, ATreeOpensWhereItWasLeft) {
    const std::vector<TreeNode> nodes = {{"甲", "11", {{"系", "21", {{"窗", "31"}, {"门", "32"}}}}},
                                         {"乙", "12"}};
    for (const bool isAgain : {false, true}) {
        QDialog screen;
        screen.setObjectName("frmProbe");
        auto* tree = new NodeTree("Tvw", "3", &screen);
        tree->Show(nodes);
        screen.show();
        EXPECT_EQ(tree->Find("21")->isExpanded(), isAgain);
        EXPECT_EQ(tree->Selected(), nullptr);
        EXPECT_EQ(tree->SelectedOrTell("没有"), nullptr);
        EXPECT_EQ(tree->currentItem() != nullptr && NodeTree::Tag(tree->currentItem()) == "32", isAgain);
        tree->expandItem(tree->Find("11"));
        tree->expandItem(tree->Find("21"));
        tree->setCurrentItem(tree->Find("32"));
        EXPECT_EQ(NodeTree::Kind(tree->Selected()) + NodeTree::Id(tree->Selected()), "32");
        tree->Move(tree->Find("31"), tree->Find("12"));
        EXPECT_EQ(tree->Find("12")->child(0)->text(0), "窗");
        screen.hide();
    }
    EXPECT_EQ(dialogs_.TakeShown(), "提示|没有\n提示|没有");
}

TEST_F(ListsTest, AFormWritesItsSlotsAndComesBackFromARefusal) {
    FieldSlots shared;
    shared[2] = "stale";
    EntryForm form(
        "frmProbe", "t",
        {{.name = "Text1(0)", .caption = "价：", .slot = 1, .keys = NumberKeys::Decimal, .column = "单价"},
         {.name = "Combo1", .caption = "类：", .slot = 3, .choices = {"型材", "型钢"}},
         {.name = "Text1(1)", .caption = "注：", .slot = 4, .mayBeEmpty = true}},
        shared, nullptr);
    int saves = 0;
    ModalScript()
        .On("frmProbe",
            [&](QDialog& screen) {
                Press(screen, "OKButton");
                QTest::keyClicks(screen.focusWidget(), "1x2.5");
                QTest::keyClick(screen.focusWidget(), Qt::Key_Return);
                EXPECT_EQ(screen.focusWidget()->objectName(), "Combo1");
                QTest::keyClick(screen.focusWidget(), Qt::Key_Down);
                QTest::keyClick(screen.focusWidget(), Qt::Key_Down);
                QTest::keyClick(screen.focusWidget(), Qt::Key_Return);
                QTest::keyClick(screen.focusWidget(), Qt::Key_Return);  // confirms, and is refused
                EXPECT_EQ(screen.focusWidget()->objectName(), "Text1(0)");
                Press(screen, "OKButton");
            })
        .Run([&] {
            EXPECT_TRUE(form.Run([&] {
                if (++saves == 1) throw ColumnError("单价", "太大");
            }));
        });
    EXPECT_EQ(dialogs_.TakeShown(), "提示|数据不能为空！\n|太大");
    EXPECT_EQ(shared[1] + "," + shared[2] + "," + shared[3] + "," + shared[4], "12.5,stale,2,");
}

}  // namespace
}  // namespace kalvane::test
