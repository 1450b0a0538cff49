// The road from a new maker of windows to the formulas of a type, through the screens.

#include <QDropEvent>
#include <QMimeData>

#include "design/formula_export.h"
#include "design/screens/FrmDesign.h"
#include "design/screens/FrmMCGS.h"
#include "support/screens/screen_kit.h"
#include "ui/node_tree.h"

namespace kalvane::test {
namespace {

class DesignFlow : public ScreenTest {
  protected:
    static QTreeWidgetItem* Node(QWidget& screen, const QString& name) {
        const auto found =
            Find<QTreeWidget>(&screen, "Tvw")->findItems(name, Qt::MatchRecursive | Qt::MatchExactly);
        if (found.isEmpty()) ADD_FAILURE() << "no node " << name.toStdString();
        return found.value(0);
    }
    static void Choose(QWidget& screen, const QString& name) {
        Find<QTreeWidget>(&screen, "Tvw")->setCurrentItem(Node(screen, name));
    }
    /// What stands below a node, in its order.
    static QString Children(QWidget& screen, const QString& name) {
        QStringList names;
        const QTreeWidgetItem* node = Node(screen, name);
        for (int i = 0; i < node->childCount(); ++i) names << node->child(i)->text(0);
        return names.join(QLatin1Char(' '));
    }
    static void Trigger(QWidget& screen, const char* action) { Find<QAction>(&screen, action)->trigger(); }

    /// Confirms a name in the dialog that the button opens.
    static void EnterName(QWidget& screen, const char* button, const char* title, const char* name) {
        ModalScript()
            .On("frmInputXL",
                [&](QDialog& input) {
                    EXPECT_EQ(input.windowTitle(), title);
                    SetText(input, "Text1", name);
                    Press(input, "OKButton");
                })
            .Run([&] { Press(screen, button); });
    }

    static void DragTo(FrmDesign& screen, const QString& from, const QString& to) {
        auto* tree = Find<QTreeWidget>(&screen, "Tvw");
        tree->expandAll();
        tree->scrollToItem(Node(screen, from));
        QTest::mousePress(tree->viewport(), Qt::LeftButton, {},
                          tree->visualItemRect(Node(screen, from)).center());
        tree->scrollToItem(Node(screen, to));
        const QPoint place = tree->visualItemRect(Node(screen, to)).center();
        const QMimeData data;
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(tree->viewport(), &enter);
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(tree->viewport(), &drop);
        QTest::mouseRelease(tree->viewport(), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
};

TEST_F(DesignFlow, MakersSeriesAndTypesAreAddedAndChanged) {
    FrmDesign screen(nullptr);
    screen.show();
    for (const char* button : {"CmdAddXL", "CmdAddMC", "CmdEditCJ", "cmdDelCJ"}) Press(screen, button);
    EXPECT_EQ(dialogs_.TakeShown(),
              "提示|无法添加对象！\n提示|无法在当前状态下添加！\n提示|无选取所要编辑的对象！\n提示|"
              "无选取所要删除的对象！");

    ModalScript()
        .On("frmInputXL",
            [&](QDialog& input) {
                Press(input, "OKButton");
                SetText(input, "Text1", "新'厂");
                Press(input, "OKButton");
                EXPECT_TRUE(input.isVisible()) << "refused";
                SetText(input, "Text1", "新厂");
                Press(input, "OKButton");
            })
        .Run([&] { Press(screen, "CmdAddCJ"); });
    const QStringList refusals = std::exchange(dialogs_.shown, {});
    ASSERT_EQ(refusals.size(), 2);
    EXPECT_EQ(refusals[0], "提示|数据不能为空！");
    Choose(screen, "新厂");
    EnterName(screen, "CmdEditCJ", "编辑->门窗厂家", "新窗厂");
    EnterName(screen, "CmdAddXL", "添加->门窗系列", "70系列");
    Choose(screen, "70系列");
    EXPECT_FALSE(Find<QPushButton>(&screen, "CmdEditCJ")->isEnabled());
    EnterName(screen, "CmdEditXL", "编辑->门窗系列", "80系列");
    ModalScript()
        .On("frmInputMC",
            [&](QDialog& input) {
                EXPECT_EQ(input.windowTitle(), "添加->门窗");
                SetText(input, "Text1(0)", "大窗");
                Press(input, "OKButton");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|数据不能为空！") << "no drawing";
                Press(input, "CmdLoadMC");
                EXPECT_EQ(TextIn(input, "Text1(1)"), "2");
                Press(input, "OKButton");
            })
        .On("frmOpenPicture",
            [](QDialog& choice) {
                Find<ReportList>(&choice, "lvw")->SelectRow(1);
                Press(choice, "OKButton");
            })
        .Run([&] { Press(screen, "CmdAddMC"); });
    Choose(screen, "大窗");
    ModalScript()
        .On("frmInputMC",
            [](QDialog& input) {
                EXPECT_EQ(input.windowTitle(), "编辑->门窗");
                EXPECT_EQ(TextIn(input, "Text1(0)") + TextIn(input, "Text1(1)"), "大窗2");
                SetText(input, "Text1(0)", "小窗");
                Press(input, "OKButton");
            })
        .Run([&] { Press(screen, "CmdEditMC"); });
    EXPECT_EQ(Rows("Select * from 门窗厂家 where 编号=2"), "2|新窗厂");
    EXPECT_EQ(Rows("Select * from 门窗系列 where 编号=5"), "2|5|80系列");
    EXPECT_EQ(Rows("Select * from 门窗 where 编号=31"), "5|31|小窗|~|2");
    EXPECT_EQ(Children(screen, "新窗厂") + Children(screen, "80系列"), "80系列小窗");

    dialogs_.answers = {false, true, true, true};
    for (int i = 0; i < 2; ++i) Press(screen, "CmdDelMC");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|小窗确定要删除该门窗吗？\n提示|小窗确定要删除该门窗吗？");
    Choose(screen, "80系列");
    Press(screen, "CmdDelXL");
    Choose(screen, "新窗厂");
    Press(screen, "cmdDelCJ");
    EXPECT_EQ(dialogs_.TakeShown(),
              "提示|80系列确定要删除该门窗系列吗？\n提示|新窗厂确定要删除该门窗厂家吗？");
    EXPECT_EQ(Rows("Select 编号 from 门窗厂家"), "1");

    dialogs_.answers = {true};
    Choose(screen, "云岭塑钢门窗");
    Press(screen, "cmdDelCJ");
    EXPECT_EQ(Rows("Select * from 门窗") + Rows("Select * from 窗型材") + Rows("Select * from 窗配件"), "");
    EXPECT_FALSE(Find<QPushButton>(&screen, "CmdAddMC")->isEnabled()) << "nothing is left to add to";
    EXPECT_TRUE(Find<QPushButton>(&screen, "CmdAddCJ")->isEnabled());
}

TEST_F(DesignFlow, TypesAreCopiedAndMovedByMenuAndByDragging) {
    FrmDesign screen(nullptr);
    screen.show();
    auto* paste = Find<QAction>(&screen, "mnuParse");
    Choose(screen, "PM60门");
    for (const char* action : {"mnuCut", "mnuCopy", "mnuMoveNext", "mnuMovePrev"}) Trigger(screen, action);
    EXPECT_FALSE(paste->isEnabled()) << "only types are cut and copied";

    const std::string own = Rows("Select 系列编号 from 门窗 where 名称='单格固定窗'");
    ASSERT_EQ(own, "1");
    Choose(screen, "单格固定窗");
    Trigger(screen, "mnuCopy");
    Choose(screen, "PK60平开窗");  // it lies there already
    Trigger(screen, "mnuParse");
    EXPECT_EQ(dialogs_.TakeShown(), "");
    Choose(screen, "PM60门");
    dialogs_.answers = {false, true};
    Trigger(screen, "mnuParse");
    EXPECT_TRUE(paste->isEnabled()) << "a question that is cancelled keeps the clipboard";
    Trigger(screen, "mnuParse");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|确认要复制？\n提示|确认要复制？");
    EXPECT_FALSE(paste->isEnabled());
    EXPECT_EQ(Rows("Select * from 门窗 where 编号=31"), "3|31|单格固定窗|~|1");
    EXPECT_EQ(Rows("Select 名称,规格,数量,计算公式 from 窗型材 where 窗号=31"),
              Rows("Select 名称,规格,数量,计算公式 from 窗型材 where 窗号=1"));

    Choose(screen, "双格固定窗");
    Trigger(screen, "mnuCopy");
    Trigger(screen, "mnuCut");
    Choose(screen, "组合门窗");
    dialogs_.answers = {true};
    Trigger(screen, "mnuParse");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|确认要移动？") << "after both it is a move";
    EXPECT_EQ(Rows("Select 系列编号,编号 from 门窗 where 名称='双格固定窗'"), "4|2");
    EXPECT_EQ(Node(screen, "双格固定窗")->parent()->text(0), "组合门窗");

    dialogs_.answers = {true};
    DragTo(screen, "双格固定窗", "PM60门");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|确认要复制？");
    EXPECT_EQ(Rows("Select * from 门窗 where 编号=32"), "3|32|双格固定窗|~|2");
    DragTo(screen, "单扇左开窗", "PK60平开窗");  // its own series
    DragTo(screen, "单扇左开窗", "云岭塑钢门窗");
    DragTo(screen, "PM60门", "PK60平开窗");
    EXPECT_EQ(dialogs_.TakeShown(), "");

    // What is deleted is no longer on the clipboard.
    Choose(screen, "单扇左开窗");
    Trigger(screen, "mnuCut");
    dialogs_.answers = {true};
    Press(screen, "CmdDelMC");
    EXPECT_FALSE(paste->isEnabled());
}

TEST_F(DesignFlow, FormulasAreDesignedAndSaved) {
    App().Main().Execute("Delete * from 窗型材 where 窗号=1");
    FrmDesign screen(nullptr);
    screen.show();
    Choose(screen, "单格固定窗");
    ModalScript()
        .On("FrmMCGS",
            [&](QDialog& designer) {
                for (const char* button : {"CmdSelect", "CmdRemove", "cmdReplace", "CmdReplaceAll"}) {
                    Press(designer, button);
                }
                const QString none = "提示|没有选取所需加入的材料";
                EXPECT_EQ(dialogs_.TakeShown(), none + "\n提示|没有选取所要移除数据\n" + none + "\n" + none);

                Choose(designer, "PK60平开系列");
                Find<ReportList>(&designer, "lvw")->SelectRow(1);
                Press(designer, "cmdReplace");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|没有选中要替换的型材或无可替换的型材！");
                for (int i = 0; i < 3; ++i) Press(designer, "CmdSelect");
                EXPECT_EQ(Table(designer, "LvwXC"), "固定框|PK60-02||\n固定框|PK60-02||\n固定框|PK60-02||");

                // A row edit by the keys: Enter walks and confirms, Ctrl+Enter copies from the row clicked
                // last.
                auto* list = Find<ReportList>(&designer, "LvwXC");
                list->SelectRow(0);
                list->setFocus();
                QTest::keyClick(list, Qt::Key_Return);
                EXPECT_FALSE(Find<QPushButton>(&designer, "CmdRemove")->isEnabled());
                EXPECT_EQ(Find<QLineEdit>(&designer, "Text1(0)")->palette().color(QPalette::Base),
                          QColor(255, 255, 0));
                for (const char* text : {"框B", "PK60-02", "2", "b-2*kh1"}) {
                    SetText(designer, designer.focusWidget()->objectName().toLatin1(), text);
                    QTest::keyClick(designer.focusWidget(), Qt::Key_Return);
                }
                EXPECT_EQ(list->Row(0).join(QLatin1Char('|')), "框B|PK60-02|2|b-2*kh1");
                EXPECT_TRUE(Find<QPushButton>(&designer, "CmdRemove")->isEnabled());
                const QRect first = list->visualItemRect(list->topLevelItem(0));
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, first.center());
                list->SelectRow(1);
                QTest::keyClick(list, Qt::Key_Return);
                for (int i = 0; i < 4; ++i) {
                    QTest::keyClick(designer.focusWidget(), Qt::Key_Return, Qt::ControlModifier);
                    if (i < 3) QTest::keyClick(designer.focusWidget(), Qt::Key_Return);
                }
                Press(designer, "CmdOk");
                EXPECT_EQ(list->Row(1), list->Row(0));
                list->SelectRow(2);
                QTest::keyClick(list, Qt::Key_Return);
                SetText(designer, "Text1(0)", "不要");
                Press(designer, "CmdCancel");
                Press(designer, "CmdRemove");
                EXPECT_EQ(list->RowCount(), 2);

                // The same group gets another profile, then one row alone.
                Find<ReportList>(&designer, "lvw")->SelectRow(0);  // 平开框 PK60-01
                list->SelectRow(0);
                Press(designer, "CmdReplaceAll");
                EXPECT_EQ(Table(designer, "LvwXC"), "平开框|PK60-01|2|b-2*kh1\n平开框|PK60-01|2|b-2*kh1");
                Find<ReportList>(&designer, "lvw")->SelectRow(2);  // 外开扇 PK60-03
                Press(designer, "cmdReplace");
                EXPECT_EQ(Table(designer, "LvwXC"), "外开扇|PK60-03|2|b-2*kh1\n平开框|PK60-01|2|b-2*kh1");

                Press(designer, "CmdMacroReplace");
                EXPECT_EQ(Table(designer, "LvwXC"), "外开扇|PK60-03|2|B-2*60\n平开框|PK60-01|2|B-2*60");
                Press(designer, "CmdFindReplace");
                EXPECT_EQ(Table(designer, "LvwXC"), "外开扇|PK60-03|2|H-2*60\n平开框|PK60-01|2|H-2*60");
                Press(designer, "CmdSave");
            })
        .On("frmMacroReplace",
            [](QDialog& macro) {
                EXPECT_EQ(macro.windowTitle(), "宏替换----单位为毫米（mm）");
                SetText(macro, "Text1(0)", "60");
                Press(macro, "OKButton");
            })
        .On("frmFindReplace",
            [&](QDialog& find) {
                Press(find, "OKButton");
                SetText(find, "Text1", "b-");
                Press(find, "OKButton");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|查找内容不能为空！\n提示|替换内容不能为空！");
                SetText(find, "Text2", "H-");
                Find<QCheckBox>(&find, "Check1(3)")->setChecked(true);
                Press(find, "OKButton");
            })
        .Run([&] { Press(screen, "CmdDesignMC"); });
    EXPECT_EQ(Rows("Select 名称,规格,数量,计算公式 from 窗型材 where 窗号=1"),
              "外开扇|PK60-03|2|H-2*60\n平开框|PK60-01|2|H-2*60");
    EXPECT_EQ(dialogs_.TakeShown(), "");
}

TEST_F(DesignFlow, LeavingAsksOnceAndCopiedFormulasReplaceAll) {
    FrmDesign screen(nullptr);
    screen.show();
    Choose(screen, "单格固定窗");
    const std::string other = Rows("Select 名称,规格,数量,计算公式 from 窗型材 where 窗号=2");
    dialogs_.answers = {false};
    ModalScript()
        .On("FrmMCGS",
            [&](QDialog& designer) {
                Press(designer, "CmdRemoveAll");
                EXPECT_EQ(Table(designer, "LvwXC") + Table(designer, "LvwPJ"), "");
                Press(designer, "CmdExit");
                EXPECT_FALSE(designer.isVisible());
            })
        .Run([&] { Press(screen, "CmdDesignMC"); });
    EXPECT_EQ(dialogs_.TakeShown(), "提示？|是否要保存？");
    EXPECT_NE(Rows("Select * from 窗型材 where 窗号=1"), "");

    dialogs_.answers = {true};
    ModalScript()
        .On("FrmMCGS",
            [&](QDialog& designer) {
                Press(designer, "CmdCopy");
                EXPECT_EQ(Table(designer, "LvwXC"), other);
                designer.activateWindow();
                EXPECT_TRUE(QTest::qWaitForWindowActive(&designer));
                QTest::keyClick(&designer, Qt::Key_Z, Qt::ControlModifier);
                EXPECT_NE(Table(designer, "LvwXC"), other);
                QTest::keyClick(&designer, Qt::Key_Y, Qt::ControlModifier);
                EXPECT_EQ(Table(designer, "LvwXC"), other);
                Press(designer, "CmdExit");
            })
        .On("frmCopyGS",
            [](QDialog& choice) {
                Choose(choice, "PK60平开窗");
                Press(choice, "OKButton");
                EXPECT_TRUE(choice.isVisible()) << "no type";
                Choose(choice, "双格固定窗");
                Press(choice, "OKButton");
            })
        .Run([&] { Press(screen, "CmdDesignMC"); });
    EXPECT_EQ(Rows("Select 名称,规格,数量,计算公式 from 窗型材 where 窗号=1"), other);
}

TEST_F(DesignFlow, WhatWouldBeLostIsNamedBeforeSaving) {
    FrmDesign screen(nullptr);
    screen.show();
    Choose(screen, "单格固定窗");
    const std::string before = Rows("Select 名称 from 窗型材 where 窗号=1");
    dialogs_.answers = {false, true, false, true, true};
    ModalScript()
        .On("FrmMCGS",
            [&](QDialog& designer) {
                auto* list = Find<ReportList>(&designer, "LvwXC");
                list->SelectRow(1);
                list->setFocus();
                QTest::keyClick(list, Qt::Key_Return);
                SetText(designer, "Text1(0)", "框'");
                SetText(designer, "Text1(1)", "pk60-02");
                Press(designer, "CmdOk");
                EXPECT_EQ(list->topLevelItem(1)->toolTip(0), "含有单引号“'”，无法保存");
                EXPECT_EQ(list->topLevelItem(1)->toolTip(1), "材料库中没有“pk60-02”");
                EXPECT_EQ(list->topLevelItem(0)->toolTip(1), "");
                Press(designer, "CmdSave");  // back from the first question
                Press(designer, "CmdSave");  // back from the second
                EXPECT_EQ(Rows("Select 名称 from 窗型材 where 窗号=1"), before);
                dialogs_.TakeShown();
                Press(designer, "CmdSave");
                EXPECT_TRUE(designer.isVisible()) << "the store refused a row";
                EXPECT_EQ(Rows("Select 名称 from 窗型材 where 窗号=1"), "固定框B")
                    << "the rows before it stay";
                EXPECT_EQ(list->RowCount(), 4);
                dialogs_.answers = {true};
                Press(designer, "CmdUndo");
                Press(designer, "CmdSave");
            })
        .Run([&] { Press(screen, "CmdDesignMC"); });
    EXPECT_EQ(Rows("Select 名称 from 窗型材 where 窗号=1"), before);
}

TEST_F(DesignFlow, FormulasGoOutToAWorkbookAndComeInAgain) {
    FrmDesign screen(nullptr);
    screen.show();
    dialogs_.files = {InFolder("formulas.xlsx")};
    Press(screen, "CmdOutGS");
    EXPECT_EQ(dialogs_.TakeShown(),
              "提示|确认您的系统上是否安装了Excel软件\n提示|已保存到：" + InFolder("formulas.xlsx"))
        << "no desktop is there to open it";
    EXPECT_EQ(screen.windowTitle(), "门窗设计");
    Press(screen, "CmdInputGS");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|当前状态下不能导入公式！必须在系列状态");
    Choose(screen, "组合门窗");
    const std::string before = Rows("Select * from 门窗");
    dialogs_.files = {QString(), InFolder("formulas.xlsx"), InFolder("formulas.xlsx")};
    Press(screen, "CmdInputGS");
    for (const char* button : {"CancelButton", "OKButton"}) {
        EXPECT_EQ(Rows("Select * from 门窗"), before) << "cancelled";
        Choose(screen, "组合门窗");
        ModalScript()
            .On("frmImportPreview",
                [&](QDialog& preview) {
                    EXPECT_EQ(screen.windowTitle(), "Excel公式导入正在进行中......");
                    EXPECT_TRUE(Find<QPlainTextEdit>(&preview, "Text1")
                                    ->toPlainText()
                                    .startsWith("窗型 30 个，公式"));
                    Press(preview, button);
                })
            .Run([&] { Press(screen, "CmdInputGS"); });
    }
    EXPECT_EQ(screen.windowTitle(), "设计门窗");
    EXPECT_EQ(Rows("Select 系列编号,编号,名称,图号 from 门窗 where 编号=31"), "4|31|单格固定窗|1");
    EXPECT_EQ(Rows("Select max(编号) from 门窗"), "60") << "all thirty types once more";
    EXPECT_EQ(Rows("Select 名称,规格,数量,计算公式 from 窗型材 where 窗号=31"),
              Rows("Select 名称,规格,数量,计算公式 from 窗型材 where 窗号=1"));
    const std::string types = Rows("Select 编号 from 门窗 where 系列编号=4");
    EXPECT_EQ(Node(screen, "组合门窗")->childCount(), std::count(types.begin(), types.end(), '\n') + 1);
}

TEST_F(DesignFlow, ARefusedRowOfAnImportIsReportedAndWhatCameBeforeItStays) {
    FrmDesign screen(nullptr);
    screen.show();
    SaveFormulaGrid({{"门窗名称：甲", "1", "", ""}, {"板材名称", "", "", ""}, {"玻璃", "两", "B", "H"}},
                    folder_ / "a.xlsx");
    dialogs_.files = {InFolder("a.xlsx")};
    Choose(screen, "组合门窗");
    ModalScript()
        .On("frmImportPreview",
            [&](QDialog& preview) {
                EXPECT_TRUE(
                    Find<QPlainTextEdit>(&preview, "Text1")->toPlainText().contains("第 3 行不能导入"));
                Press(preview, "OKButton");
            })
        .Run([&] { Press(screen, "CmdInputGS"); });
    const QString shown = dialogs_.TakeShown();
    EXPECT_TRUE(shown.startsWith("提示|确认您的系统上是否安装了Excel软件\n|第 3 行不能导入"))
        << shown.toStdString();
    EXPECT_EQ(Rows("Select 系列编号,名称,图号 from 门窗 where 编号=31"), "4|甲|1");
    EXPECT_NE(Node(screen, "甲"), nullptr) << "the tree is loaded again";
}

TEST_F(DesignFlow, FormulasThatWereNotSavedAreOfferedAgain) {
    {
        FrmDesign screen(nullptr);
        EXPECT_FALSE(Find<QPushButton>(&screen, "CmdRecover")->isVisibleTo(&screen));
        RecoveryShelf shelf(folder_.Path(), "unsaved-formulas-");
        FrmMCGS killed("1", shelf, nullptr);
        Press(killed, "CmdRemoveAll");  // and it ends without a word
    }
    FrmDesign screen(nullptr);
    screen.show();
    ModalScript()
        .On("FrmMCGS",
            [](QDialog& designer) {
                EXPECT_EQ(Table(designer, "LvwXC"), "");
                Press(designer, "CmdSave");
            })
        .Run([&] { Press(screen, "CmdRecover"); });
    EXPECT_EQ(Rows("Select * from 窗型材 where 窗号=1"), "");
    EXPECT_FALSE(Find<QPushButton>(&screen, "CmdRecover")->isVisibleTo(&screen));
    FrmDesign next(nullptr);
    EXPECT_FALSE(Find<QPushButton>(&next, "CmdRecover")->isVisibleTo(&next)) << "it is saved";
}

TEST_F(DesignFlow, AWholeTypeIsTriedWithTestValues) {
    RecoveryShelf shelf(folder_.Path(), "unsaved-formulas-");
    FrmMCGS designer("1", shelf, nullptr);
    designer.show();
    // The window of the sample project: B 900, H 1200. 固定框B: B+6, 2 pieces.
    Find<ReportList>(&designer, "LvwXC")->SelectRow(0);
    EXPECT_EQ(Find<QLabel>(&designer, "LblValue")->text(), "数量 = 2，计算公式 = 906");
    auto* tests = Find<QTableWidget>(&designer, "LvwTest");
    tests->item(0, 1)->setText(QString::fromUtf8("８0"));
    EXPECT_EQ(tests->item(0, 1)->text(), "80");
    EXPECT_EQ(Find<QLabel>(&designer, "LblValue")->text(), "数量 = 2，计算公式 = 86");
    ModalScript()
        .On("frmFormulaCheck",
            [](QDialog& check) {
                // B 80: 固定压条B B-2*60+2*20 is 0, 固定框B衬钢 B-2*55 -30, the glass B-2*60+2*15 -10.
                EXPECT_EQ(Table(check, "Lvw"),
                          "门窗型材|3|计算公式|算出来是 0\n门窗型钢|1|计算公式|算出来是 -30\n"
                          "门窗板材|1|长公式|算出来是 -10");
                Find<ReportList>(&check, "Lvw")->SelectRow(1);
                Press(check, "OKButton");
            })
        .Run([&] { Press(designer, "CmdCheck"); });
    EXPECT_EQ(designer.findChild<QTabWidget*>()->currentIndex(), 1);
    // The next designer begins with what was typed.
    FrmMCGS next("1", shelf, nullptr);
    EXPECT_EQ(Find<QTableWidget>(&next, "LvwTest")->item(0, 1)->text(), "80");
}

}  // namespace
}  // namespace kalvane::test
