// The road from a new project to its windows, through the screens.

#include "app/screens/kalvane_kernel.h"
#include "project/screens/frmAddGCMC.h"
#include "project/screens/frmMCGCGL.h"
#include "project/screens/frmOpenGC.h"
#include "support/screens/screen_kit.h"
#include "ui/report_list.h"

namespace kalvane::test {
namespace {

class ProjectFlow : public ScreenTest {
  protected:
    void TearDown() override {
        delete frmOpenGC::OfProject(App().currentProjectId);
        ScreenTest::TearDown();
    }

    /// Types into whatever has the focus of the screen, Chinese through an input method, with Enter behind
    /// each of the texts.
    static void TypeThrough(QWidget& screen, const char* commaSeparated) {
        for (const QString& text : QString::fromUtf8(commaSeparated).split(QLatin1Char(','))) {
            if (text == QString::fromLatin1(text.toLatin1())) {
                QTest::keyClicks(screen.focusWidget(), text);
            } else {
                QInputMethodEvent typed;
                typed.setCommitString(text);
                QApplication::sendEvent(screen.focusWidget(), &typed);
            }
            QTest::keyClick(screen.focusWidget(), Qt::Key_Return);
        }
    }

    /// Clicks through the tree of window types to the first node of that name.
    static void ClickTo(QWidget& screen, const QString& name) {
        auto* tree = Find<QTreeWidget>(&screen, "Tvw");
        QList<QTreeWidgetItem*> path = tree->findItems(name, Qt::MatchRecursive).mid(0, 1);
        ASSERT_FALSE(path.isEmpty()) << name.toStdString();
        while (path[0]->parent() != nullptr) path.prepend(path[0]->parent());
        for (QTreeWidgetItem* node : path) {
            tree->scrollToItem(node);
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(node).center());
        }
    }

    frmOpenGC* OpenSample() {
        frmOpenGC::Open({"1", "YL-2026-001", "示例工程", "", ""}, KalvaneKernel::Roads());
        return frmOpenGC::OfProject("1");
    }
};

TEST_F(ProjectFlow, ProjectsAreEnteredChangedAndDeleted) {
    App().Main().Execute("Insert into 工程 (编号,合同编号,工程名称) values(4,'h','A')");
    App().Main().Execute("Update 工程 Set 工程名称='Z' where 编号=1");
    frmMCGCGL list(KalvaneKernel::Roads(), nullptr);
    list.show();
    auto* lvw = Find<ReportList>(&list, "Lvw");
    EXPECT_EQ(lvw->Text(0, 0), "A") << "sorted by name, not in the order of the store";
    EXPECT_EQ(lvw->SelectedRow(), 0) << "Enter opens the first";
    Deselect(list, "Lvw");
    for (const char* button : {"CmdEdit", "CmdDel", "CmdOpen"}) Press(list, button);
    EXPECT_EQ(dialogs_.TakeShown(),
              "提示|无选取所需编辑的对象！\n提示|无选取所需删除的对象！\n提示|无打开的工程！");

    ModalScript()
        .On("frmInputGC",
            [&](QDialog& input) {
                TypeThrough(input, "B',东街,");
                Press(input, "OKButton");
                EXPECT_EQ(input.focusWidget()->objectName(), "Text1(2)");
                TypeThrough(input, "乙公司,HT-5");  // the store refuses the quote
                EXPECT_EQ(input.focusWidget()->objectName(), "Text1(0)");
                SetText(input, "Text1(3)", "HT-5678901234567890");  // 19 characters into 18
                SetText(input, "Text1(0)", "B");
                Press(input, "OKButton");
                EXPECT_EQ(input.focusWidget()->objectName(), "Text1(3)");
                dialogs_.answers = {false};
                input.reject();
                EXPECT_TRUE(input.isVisible()) << "what was typed stays";
                SetText(input, "Text1(3)", "HT-5");
                Press(input, "OKButton");
            })
        .Run([&] { Press(list, "CmdAdd"); });
    const QStringList shown = std::exchange(dialogs_.shown, {});
    ASSERT_EQ(shown.size(), 4);
    EXPECT_EQ(shown[0], "提示|数据不能为空！");
    EXPECT_EQ(shown[3], "提示|输入的内容还没有保存，要放弃吗？");
    EXPECT_EQ(Rows("Select * from 工程 where 编号=5"), "5|HT-5|B|东街|乙公司");

    ModalScript()
        .On("frmInputGC",
            [](QDialog& input) {
                SetText(input, "Text1(1)", "西街");
                Press(input, "OKButton");
            })
        .Run([&] { Press(list, "CmdEdit"); });
    EXPECT_EQ(Rows("Select * from 工程 where 编号=5"), "5|HT-5|B|西街|乙公司");

    QTest::keyClick(lvw, Qt::Key_Return);  // opens, as a double click does
    frmOpenGC* opened = frmOpenGC::OfProject("5");
    ASSERT_NE(opened, nullptr);

    dialogs_.answers = {false, true};
    for (const int left : {3, 2}) {
        Press(list, "CmdDel");
        EXPECT_EQ(lvw->RowCount(), left);
    }
    const QString question = "提示|确认要删除工程：B吗？";
    EXPECT_EQ(dialogs_.usualAnswers.back(), Dialogs::Answer::No) << "Enter deletes nothing";
    EXPECT_EQ(dialogs_.TakeShown(), question + "\n" + question);
    EXPECT_EQ(Rows("Select 编号 from 工程"), "1\n4");
    EXPECT_EQ(frmOpenGC::OfProject("5"), nullptr) << "its windows are gone with it";
}

TEST_F(ProjectFlow, WindowsAreTypedThroughByEnter) {
    frmOpenGC* opened = OpenSample();
    auto* lvw = Find<ReportList>(opened, "Lvw");
    const int before = lvw->RowCount();
    ModalScript()
        .On("frmAddGCMC",
            [&](QDialog& add) {
                SetText(add, "Text1(0)", "C");
                Press(add, "cmdAdd");  // no type is chosen yet: nothing happens
                EXPECT_EQ(lvw->RowCount(), before);
                ClickTo(add, "单格固定窗");
                auto* labels = Find<ReportList>(&add, "LvwBZ");
                TypeThrough(add, "1000,1200,东,,,x2.0,备");
                EXPECT_EQ(add.focusWidget()->objectName(), "cmdAdd");
                EXPECT_EQ(TextIn(add, "Text1(4)"), "20") << "other keys are dropped";
                TypeThrough(add, "");

                EXPECT_EQ(lvw->RowCount(), before + 1);
                EXPECT_EQ(TextIn(add, "Text1(0)"), "单格固定窗");
                EXPECT_EQ(add.focusWidget()->objectName(), "TxtBZ");
                QTest::keyClick(add.focusWidget(), Qt::Key_Down);
                EXPECT_EQ(labels->SelectedRow(), 1);
                Press(add, "cmdAdd");  // another of this type, with the same labels
                SetText(add, "Text1(4)", "40000");
                dialogs_.TakeShown();
                Press(add, "cmdAdd");  // beyond 16 bits
                EXPECT_EQ(std::exchange(dialogs_.shown, {}).size(), 1);
                auto* tree = Find<QTreeWidget>(&add, "Tvw");
                ClickTo(add, tree->currentItem()->parent()->parent()->text(0));
                EXPECT_EQ(labels->RowCount(), 0);

                // By the keys: the arrows show a type, Enter leads on to its labels.
                QTest::keyClick(tree, Qt::Key_Down);
                QTest::keyClick(tree, Qt::Key_Down);
                EXPECT_EQ(TextIn(add, "Text1(0)"), tree->currentItem()->text(0));
                QTest::keyClick(tree, Qt::Key_Return);
                EXPECT_EQ(labels->SelectedRow(), 0);
                EXPECT_EQ(add.focusWidget()->objectName(), "TxtBZ");
                for (int i = 0; i < 30; ++i) {  // a key held down adds no windows
                    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
                    QApplication::sendEvent(add.focusWidget(), &held);
                }
            })
        .Run([&] { Press(*opened, "CmdAdd"); });
    EXPECT_EQ(Rows("Select 编号,门窗编号,门窗名称,门窗类型,洞口宽,洞口高,樘数,说明 from 工程门窗 "
                   "where 编号>33 order by 编号"),
              "34|1|单格固定窗|东|1000|1200|20|备\n35|1|单格固定窗|0|0|0|0|0");
    EXPECT_EQ(Rows("Select Mcnum,MC,schar from 标注 where Mcnum>33"),
              "34|B|1000\n34|H|1200\n35|B|1000\n35|H|1200");
}

TEST_F(ProjectFlow, WindowsAreChangedAndDeleted) {
    frmOpenGC* opened = OpenSample();
    auto* lvw = Find<ReportList>(opened, "Lvw");
    Deselect(*opened, "Lvw");
    for (const char* button : {"CmdEdit", "CmdDel"}) Press(*opened, button);
    EXPECT_EQ(dialogs_.TakeShown(), "提示|无选取所要编辑的门窗！\n提示|在当前工程中无删除的门窗！");

    lvw->SelectRow(1);  // C2: B 1500, H 1200, b1 750, b2 750
    ModalScript()
        .On("frmAddGCMC",
            [](QDialog& edit) {
                TypeThrough(edit, "1600,,850");
                SetText(edit, "Text1(5)", "改");
                Press(edit, "cmdAdd");
                EXPECT_FALSE(edit.isVisible());
            })
        .Run([&] { Press(*opened, "CmdEdit"); });
    EXPECT_EQ(Rows("Select 门窗编号,门窗名称,洞口宽,洞口高,樘数,说明 from 工程门窗 where 编号=2"),
              "2|C2|1600|1200|4|改");
    EXPECT_EQ(Rows("Select MC,schar from 标注 where Mcnum=2"), "B|1600\nH|1200\nb1|850\nb2|750");
    EXPECT_EQ(lvw->Text(lvw->SelectedRow(), 2), "1600");

    dialogs_.answers = {true};
    opened->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(opened));
    lvw->setFocus();
    QTest::keyClick(lvw, Qt::Key_Delete);
    EXPECT_EQ(dialogs_.TakeShown(), "提示|确认要删除门窗：C2吗？");
    EXPECT_EQ(Rows("Select 编号 from 工程门窗 where 编号=2") + Rows("Select * from 标注 where Mcnum=2"), "");

    dialogs_.inputs = {"7", QString()};
    for (const char* number : {"7", ""}) {  // a cancelled box stores an empty number
        Press(*opened, "CmdAutoNum");
        EXPECT_EQ(settings_.Read("Tesmar", "KALVANE", "AUTONUM", "none"), number);
    }
}

TEST_F(ProjectFlow, TypeWithoutDrawingKeepsNoLabelsOfTheTypeBefore) {
    App().Main().Execute("Update 门窗 set 图号=Null, 名称='无图' where 编号=2");
    frmAddGCMC add(nullptr);
    add.StartAdding("1");
    add.show();
    ClickTo(add, "单格固定窗");
    auto* labels = Find<ReportList>(&add, "LvwBZ");
    ASSERT_EQ(labels->RowCount(), 2);
    auto* tree = Find<QTreeWidget>(&add, "Tvw");  // as with the arrow keys
    tree->setCurrentItem(tree->findItems("无图", Qt::MatchRecursive).value(0));
    EXPECT_EQ(labels->RowCount(), 0);
    EXPECT_EQ(dialogs_.shown.filter("还没有图").size(), 1);
    add.close();

    // A window of such a type can still be changed: its labels are its own.
    frmOpenGC* opened = OpenSample();
    Find<ReportList>(opened, "Lvw")->SelectRow(1);  // C2
    ModalScript()
        .On("frmAddGCMC",
            [](QDialog& edit) {
                TypeThrough(edit, "1650");
                Press(edit, "cmdAdd");
            })
        .Run([&] { Press(*opened, "CmdEdit"); });
    EXPECT_EQ(Rows("Select MC,schar from 标注 where Mcnum=2"), "B|1650\nH|1200\nb1|750\nb2|750");
}

}  // namespace
}  // namespace kalvane::test
