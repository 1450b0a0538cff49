// Contracts, copies and composite windows, through the screens.

#include "app/screens/kalvane_kernel.h"
#include "project/screens/frmAddGCZHMC.h"
#include "project/screens/frmCopyGC.h"
#include "project/screens/frmGCHT.h"
#include "project/screens/frmMCGCGL.h"
#include "project/screens/frmOpenGC.h"
#include "support/screens/screen_kit.h"
#include "ui/report_list.h"

namespace kalvane::test {
namespace {

const Project kSample{"1", "YL-2026-001", "示例工程", "", ""};
const std::string kMembers = "Select MCBN,CBN,CMC,MC,MCZ,Count from 标注2";

class CompositeFlow : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        // What the starter library has of composites would only be in the way of the numbers.
        App().Main().Execute("Delete * from 标注2");
        App().Main().Execute("Delete * from 标注 where Mcnum>30");
        App().Main().Execute("Delete * from 工程门窗 where 编号>30");
    }
    void TearDown() override {
        delete frmOpenGC::OfProject("1");
        ScreenTest::TearDown();
    }

    static void Click(QWidget& screen, const char* tree, const QString& name) {
        auto* nodes = Find<QTreeWidget>(&screen, tree);
        QTreeWidgetItem* node = nodes->findItems(name, Qt::MatchRecursive).value(0);
        ASSERT_NE(node, nullptr) << name.toStdString();
        nodes->scrollToItem(node);
        QTest::mouseClick(nodes->viewport(), Qt::LeftButton, {}, nodes->visualItemRect(node).center());
    }
    /// Types the values of all labels of the current node; the last asks for the count.
    static void TypeLabels(QWidget& screen, const QStringList& values) {
        for (const QString& value : values) {
            SetText(screen, "TxtBZ", value.toUtf8().constData());
            Press(screen, "CmdChange");
        }
    }
    static std::string Nodes(const QWidget& screen) {
        QStringList names;
        const auto* tree = Find<QTreeWidget>(&screen, "Tvw1");
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* node = tree->topLevelItem(i);
            names << node->text(0) + (node->foreground(0) == QBrush(Qt::red) ? "!" : "");
        }
        return names.join(QLatin1Char(' ')).toStdString();
    }
    static void SetCount(QDialog& input, const char* count) {
        SetText(input, "Text1", count);
        Press(input, "OKButton");
    }
    frmOpenGC* OpenSample() {
        frmOpenGC::Open(kSample, KalvaneKernel::Roads());
        return frmOpenGC::OfProject("1");
    }
};

TEST_F(CompositeFlow, ABayWindowIsMadeChangedAndCancelled) {
    frmOpenGC* opened = OpenSample();
    auto* lvw = Find<ReportList>(opened, "Lvw");
    ModalScript()
        .On("frmAddGCZHMC",
            [&](QDialog& add) {
                EXPECT_EQ(add.windowTitle(), "添加门窗");
                Press(add, "CmdSelect");
                Press(add, "CmdRemove");
                Find<QTreeWidget>(&add, "TVW")->expandAll();
                Click(add, "TVW", "PK60平开窗");
                Press(add, "CmdSelect");
                SetText(add, "Text1(0)", "P1");
                Press(add, "cmdAdd");
                EXPECT_EQ(dialogs_.TakeShown(),
                          "提示|当前无选取结点！\n提示|当前无选取结点！\n提示|当前所选的结点非门窗结点！\n"
                          "提示|数据不能为空！");
                EXPECT_EQ(add.focusWidget()->objectName(), "CmdOpenPic");

                Press(add, "CmdOpenPic");  // two modal screens, in the steps below
                EXPECT_EQ(TextIn(add, "TxtTH"), "29");
                EXPECT_EQ(Rows("Select CBN,CMC,MC,MCZ,Count from 标注2 where MC='B'"),
                          "-29|八字飘窗（展开）10|B|0|1")
                    << "cancelled: the count that was offered stands";
                TypeLabels(add, {"2600", "1700", "600", "1400", "600", "450", "1250"});
                EXPECT_EQ(TextIn(add, "Text1(2)") + TextIn(add, "Text1(3)"), "26001700");
                EXPECT_EQ(add.focusWidget()->objectName(), "Text1(1)");

                Click(add, "TVW", "单格固定窗");
                EXPECT_EQ(Find<ReportList>(&add, "LvwBZ")->RowCount(), 0);
                Press(add, "CmdSelect");
                Press(add, "CmdSelect");
                Click(add, "TVW", "双格固定窗");
                Press(add, "CmdSelect");
                EXPECT_EQ(Nodes(add), "八字飘窗（展开）10 单格固定窗11! 单格固定窗12! 双格固定窗13!");
                Click(add, "Tvw1", "单格固定窗11");
                TypeLabels(add, {"600", "1700"});  // two of it
                EXPECT_EQ(TextIn(add, "Text1(2)"), "2600") << "a member sets no making size";
                Click(add, "Tvw1", "单格固定窗12");
                TypeLabels(add, {"500", "1700"});  // one, cancelled
                SetText(add, "Text1(4)", "2");
                dialogs_.answers = {false};
                Press(add, "cmdAdd");
                EXPECT_EQ(dialogs_.TakeShown(),
                          "提示|保存前请看：\n双格固定窗13：标注都还是 0\n\n仍要保存吗？");
                Click(add, "Tvw1", "双格固定窗13");
                TypeLabels(add, {"1400", "1700", "700", "700"});
                Press(add, "cmdAdd");
                EXPECT_EQ(TextIn(add, "Text1(2)") + TextIn(add, "TxtTH"), "0");
                Press(add, "Command2");
            })
        .On("frmOpenPicture",
            [](QDialog& library) {
                EXPECT_FALSE(Find<QPushButton>(&library, "CmdDel")->isEnabled());
                Find<ReportList>(&library, "lvw")->SelectRow(28);
                Press(library, "OKButton");
            })
        .On("frmInputBox", [](QDialog& input) { EXPECT_EQ(TextIn(input, "Text1"), "1"); })
        .On("frmInputBox", [](QDialog& input) { SetCount(input, "1"); })  // the main drawing's last label
        .On("frmInputBox", [](QDialog& input) { SetCount(input, "2"); })
        .On("frmInputBox", [](QDialog& input) { Press(input, "CancelButton"); })
        .On("frmInputBox", [](QDialog& input) { SetCount(input, "1"); })
        .Run([&] { Press(*opened, "CmcZHMC"); });
    EXPECT_EQ(Rows("Select 门窗编号,门窗名称,洞口宽,洞口高,樘数 from 工程门窗 where 编号=31"),
              "-29|P1|2600|1700|2");
    const std::string members =
        "31|1|单格固定窗11|B|600|2\n31|1|单格固定窗11|H|1700|2\n31|1|单格固定窗12|B|500|1\n"
        "31|1|单格固定窗12|H|1700|1\n31|2|双格固定窗13|B|1400|1\n31|2|双格固定窗13|H|1700|1\n"
        "31|2|双格固定窗13|b1|700|1\n31|2|双格固定窗13|b2|700|1";
    EXPECT_EQ(Rows(kMembers), members);
    EXPECT_EQ(Rows("Select MC,schar from 标注 where Mcnum=31"),
              "B|2600\nH|1700\nb1|600\nb2|1400\nb3|600\nh1|450\nh2|1250");

    // Cancelled: a member is gone with the other of its type, taken again, and nothing of it stored.
    ModalScript()
        .On("frmAddGCZHMC",
            [&](QDialog& edit) {
                EXPECT_EQ(edit.windowTitle(), "组合窗编辑");
                EXPECT_EQ(Nodes(edit), "P1 单格固定窗11 单格固定窗12 双格固定窗13");
                EXPECT_EQ(TextIn(edit, "TxtTH") + TextIn(edit, "Text1(0)"), "29P1");
                Click(edit, "Tvw1", "单格固定窗12");
                Press(edit, "CmdRemove");
                EXPECT_EQ(Nodes(edit), "P1 单格固定窗11! 双格固定窗13");
                Press(edit, "CmdSaveBZ");  // nothing is current: nothing is asked
                EXPECT_EQ(Rows("Select CMC from 标注2 where MCBN=-1 and CBN=1"), "");
                Find<QTreeWidget>(&edit, "TVW")->expandAll();
                Click(edit, "TVW", "单格固定窗");
                Press(edit, "CmdSelect");
                EXPECT_EQ(Rows("Select CMC,MCZ,Count from 标注2 where MCBN=-1 and MC='B' and CBN=1"),
                          "单格固定窗14|0|1");
                dialogs_.answers = {false};
                edit.reject();
                EXPECT_TRUE(edit.isVisible()) << "what was changed is asked about";
                Press(edit, "Command2");
            })
        .Run([&] { Press(*opened, "CmdEdit"); });
    dialogs_.TakeShown();
    EXPECT_EQ(Rows(kMembers), members) << "also no row under edit is left";

    // An edited composite goes to the end of the list. A quote is asked about, and a refused save repeated.
    App().Main().Execute("Insert into 工程门窗 (工程编号,门窗编号,编号,门窗名称) values(1,3,32,'C')");
    opened->SetProject(kSample);
    lvw->SelectRow(30);
    ModalScript()
        .On("frmAddGCZHMC",
            [&](QDialog& edit) {
                SetText(edit, "Text1(1)", "主'卧");
                dialogs_.answers = {false, true};
                Press(edit, "cmdAdd");
                Press(edit, "cmdAdd");
                EXPECT_TRUE(edit.isVisible());
                ASSERT_EQ(dialogs_.shown.size(), 3);
                EXPECT_TRUE(dialogs_.shown[2].contains("工程里现在没有门窗“P1”这一行。"));
                dialogs_.TakeShown();
                SetText(edit, "Text1(1)", "主卧");
                Press(edit, "cmdAdd");
            })
        .Run([&] { Press(*opened, "CmdEdit"); });
    EXPECT_EQ(lvw->Row(lvw->RowCount() - 1).join("|").toStdString(), "P1|主卧|2600|1700|2|0|1|-29|31");
    EXPECT_EQ(lvw->RowCount(), 32);
    EXPECT_EQ(Rows(kMembers), members);

    dialogs_.answers = {true};
    Press(*opened, "CmdDel");
    EXPECT_EQ(Rows(kMembers) + Rows("Select MC from 标注 where Mcnum=31"), "");
}

TEST_F(CompositeFlow, AContractIsFilledSavedAndReplaced) {
    frmMCGCGL list(KalvaneKernel::Roads(), nullptr);
    list.show();
    Deselect(list, "Lvw");
    for (const char* button : {"CmdOpenHT", "CmdCopyGCMC"}) Press(list, button);
    EXPECT_EQ(dialogs_.TakeShown(), "提示|无存在工程无法打开工程合同！\n提示|无打开的工程！");
    Find<ReportList>(&list, "Lvw")->SelectRow(0);
    settings_.Save("Tesmar", "KALVANE", "DW", "云岭");
    const auto term = [](QDialog& form, const char* name) { return Find<QPlainTextEdit>(&form, name); };
    ModalScript()
        .On("frmGCHT",
            [&](QDialog& form) {
                EXPECT_EQ(TextIn(form, "Text1(1)"), "望溪置业有限公司");
                Press(form, "cmdFill");
                EXPECT_EQ(TextIn(form, "Text1(0)") + TextIn(form, "Text1(2)"), "云岭");
                Press(form, "CmdSave");
                EXPECT_EQ(form.focusWidget()->objectName(), "Text1(2)");
                SetText(form, "Text1(2)", "路1号");
                SetText(form, "Text1(4)", "0555");
                term(form, "Text1(12)")->clear();  // may be empty
                term(form, "Text1(6)")->setPlainText("恒岚\n'白'");
                dialogs_.answers = {false, true};
                Press(form, "CmdSave");
                EXPECT_EQ(Rows("Select T3 from 工程合同"), "云岭市东郊工业园二路9号");
                Press(form, "CmdSave");
                EXPECT_TRUE(form.isVisible()) << "refused, with everything typed";
                EXPECT_EQ(Rows("Select T3 from 工程合同"), "");
                EXPECT_TRUE(dialogs_.shown.back().contains("现在没有存储的合同"));
                term(form, "Text1(6)")->setPlainText("恒岚\n白");
                Press(form, "CmdSave");
                EXPECT_FALSE(form.isVisible());
            })
        .Run([&] { Press(list, "CmdOpenHT"); });
    EXPECT_EQ(Rows("Select T1,T3,T5,T7,T13,BT,HTBN from 工程合同"), "云岭|路1号|0555|恒岚\n白||云岭订货单|1");
    ModalScript()
        .On("frmGCHT",
            [&](QDialog& form) {
                SetText(form, "Text1(0)", "未存");
                Press(form, "CmdPrintAll");
                Press(form, "CmdExit");
            })
        .On("frmPreview", [](QDialog&) {})
        .Run([&] { Press(list, "CmdOpenHT"); });
    EXPECT_EQ(Rows("Select T1 from 工程合同"), "云岭");
}

TEST_F(CompositeFlow, WindowsAndWholeProjectsAreCopied) {
    App().Main().Execute(
        "Insert into 工程 (编号,合同编号,工程名称,工程地点,甲方单位) values(2,'','乙','','')");
    frmMCGCGL list(KalvaneKernel::Roads(), nullptr);
    list.show();
    auto* lvw = Find<ReportList>(&list, "Lvw");
    lvw->SelectRow(0);
    ASSERT_EQ(lvw->Text(0, 4), "2");
    ModalScript()
        .On("frmCopyGC",
            [&](QDialog& copy) {
                EXPECT_EQ(copy.windowTitle(), "复制工程门窗->乙");
                for (const char* list : {"Lvw2", "Lvw3"}) Deselect(copy, list);
                Find<ReportList>(&copy, "Lvw1")->SelectRow(1);  // the target itself, still empty
                for (const char* button :
                     {"CmdSelect", "CmdSelectAll", "CmdRemove", "CmdRemoveAll", "CmdSave"}) {
                    Press(copy, button);
                }
                EXPECT_EQ(dialogs_.TakeShown(),
                          "提示|无可选入对象！\n提示|无可选入对象！\n提示|无可移除对象！\n"
                          "提示|无可选入对象！\n提示|无当前工程的门窗！");
                Find<ReportList>(&copy, "Lvw1")->SelectRow(0);
                Find<ReportList>(&copy, "Lvw2")->SelectRow(1);  // C2
                Press(copy, "CmdSelect");
                Press(copy, "CmdSelect");
                EXPECT_EQ(Find<ReportList>(&copy, "Lvw2")->RowCount(), 30);
                Press(copy, "CmdSave");
            })
        .Run([&] { Press(list, "CmdCopyGCMC"); });
    EXPECT_EQ(Rows("Select 编号,门窗编号,门窗名称,樘数 from 工程门窗 where 工程编号=2"),
              "31|2|C2|4\n32|2|C2|4");
    EXPECT_EQ(Rows("Select MC,schar from 标注 where Mcnum=32"), "B|1500\nH|1200\nb1|750\nb2|750");

    dialogs_.inputs = {"乙'", "丙"};
    Press(list, "CmdCopyGC");
    EXPECT_EQ(lvw->RowCount(), 2) << "refused";
    Press(list, "CmdCopyGC");
    EXPECT_EQ(Rows("Select 工程名称 from 工程 where 编号=3"), "丙");
    EXPECT_EQ(Rows("Select 编号,门窗名称 from 工程门窗 where 工程编号=3"), "33|C2\n34|C2");
    EXPECT_EQ(lvw->Text(lvw->SelectedRow(), 0), "丙");
}

}  // namespace
}  // namespace kalvane::test
