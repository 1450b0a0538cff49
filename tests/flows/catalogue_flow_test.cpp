// A workshop's own materials, through the screen of the catalogue.

#include "catalogue/screens/frmDatabase.h"
#include "support/screens/screen_kit.h"
#include "ui/node_tree.h"

namespace kalvane::test {
namespace {

class CatalogueFlow : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        for (const char* table : {"材料厂家", "型材系列", "型材", "型钢", "玻璃", "配件"}) {
            App().Main().Execute(std::string("Delete * from ") + table);
        }
        for (const char* row :
             {"材料厂家 values(1,'型厂','-','-','-','1')", "材料厂家 values(2,'配厂','-','-','-','4')",
              "型材系列 values(1,3,'推拉')", "型材 values(3,1,'框','GK60',6000,2.3,'白',1.05,9800)",
              "型材 values(3,2,'扇','SK60',6000,2.3,'白',0.95,9800)",
              "配件 values(2,1,'锁','S-1','只',3.5)"}) {
            App().Main().Execute(std::string("Insert into ") + row);
        }
        screen_ = std::make_unique<frmDatabase>(nullptr);
        screen_->show();
    }
    void TearDown() override {
        screen_.reset();
        ScreenTest::TearDown();
    }

    void Choose(const char* tag) {
        auto* tree = Find<NodeTree>(screen_.get(), "Tvw");
        tree->setCurrentItem(tree->Find(tag));
    }
    void Fill(QWidget& form, std::initializer_list<const char*> texts) {
        int index = 0;
        for (const char* text : texts) {
            SetText(form, QStringLiteral("Text1(%1)").arg(index++).toLatin1().constData(), text);
        }
    }
    void PressIn(const char* button, const char* form, const ModalScript::Work& work) {
        ModalScript().On(form, work).Run([&] { Press(*screen_, button); });
    }

    std::unique_ptr<frmDatabase> screen_;
};

TEST_F(CatalogueFlow, CommandsWithoutASelectionSaySo) {
    for (const char* button : {"CmdEdit1", "CmdDel1", "CmdAdd2", "CmdEdit2", "CmdDel2", "cmdPrice"}) {
        Press(*screen_, button);
    }
    EXPECT_EQ(dialogs_.TakeShown(),
              "提示|无选取所需编辑的对象！\n提示|无选取所要删除的对象！\n提示|当前状态下不能添加任何数据！\n"
              "提示|无选取选需的编辑对象！\n提示|无选取所要删除的对象！\n提示|当前状态下不能调整任何数据！");
    Choose("11");
    Press(*screen_, "CmdAdd2");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|当前状态下不能添加任何数据！") << "the list has no columns";
    Choose("35");
    for (const char* tag : {"11", "42"}) {
        Choose(tag);
        Press(*screen_, "cmdPrice");
    }
    EXPECT_EQ(dialogs_.TakeShown(), "") << "neither has one price for all";
    Choose("42");
    Find<NodeTree>(screen_.get(), "Tvw")->clearSelection();
    Press(*screen_, "CmdAdd2");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|没有选取系列或厂家对象无法执行该功能！");
}

TEST_F(CatalogueFlow, MakersAndSeriesAreAddedWhereTheSelectionSays) {
    PressIn("CmdAdd1", "frmInputCJ", [&](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), "添加->厂家");
        EXPECT_EQ(TextIn(form, "Text1(2)"), "-");
        SetText(form, "Text1(0)", "新板厂");
        Press(form, "OKButton");
        EXPECT_EQ(dialogs_.TakeShown(), "提示|数据不能为空！") << "the category is still to be chosen";
        Find<QComboBox>(&form, "Combo1")->setCurrentIndex(2);
        Press(form, "OKButton");
    });
    EXPECT_EQ(Rows("Select * from 材料厂家 where 编号=3"), "3|新板厂|-|-|-|3");
    Choose("33");
    PressIn("CmdEdit1", "frmInputCJ", [&](QDialog& form) {
        EXPECT_EQ(Find<QComboBox>(&form, "Combo1")->currentText(), "板材厂家");
        SetText(form, "Text1(1)", "123");
        Press(form, "OKButton");
    });
    EXPECT_EQ(Rows("Select 联系电话 from 材料厂家 where 编号=3"), "123");

    const auto addSeries = [](const char* name) {
        return [name](QDialog& form) {
            SetText(form, "Text1", name);
            Press(form, "OKButton");
        };
    };
    Choose("53");
    PressIn("CmdAdd1", "frmInputXL", addSeries("平开"));
    Choose("11");
    ModalScript()
        .On("frmXLOption",
            [](QDialog& option) {
                EXPECT_TRUE(Find<QRadioButton>(&option, "Option1")->isChecked());
                Find<QRadioButton>(&option, "Option2")->setChecked(true);
                Press(option, "OKButton");
            })
        .On("frmInputXL", addSeries("内开"))
        .Run([&] { Press(*screen_, "CmdAdd1"); });
    EXPECT_EQ(Rows("Select * from 型材系列"), "1|3|推拉\n1|4|平开\n1|5|内开");
    EXPECT_EQ(Find<NodeTree>(screen_.get(), "Tvw")->Find("55")->text(0), "内开");
    dialogs_.answers = {true};
    Press(*screen_, "CmdDel1");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|确认要删除该记录吗？(型厂)");
    EXPECT_EQ(Rows("Select 编号 from 材料厂家") + Rows("Select * from 型材系列") + Rows("Select * from 型材"),
              "2\n3");
    EXPECT_EQ(Find<ReportList>(screen_.get(), "Lvw")->columnCount(), 0);
}

TEST_F(CatalogueFlow, MaterialsAreAddedChangedAndDeleted) {
    App().Main().Execute("Update 窗型材 set 规格='GK60'");
    const std::string types =
        std::to_string(App().Main().OpenCursor("Select 窗号 from 窗型材 group by 窗号").RecordCount());
    Choose("53");
    EXPECT_EQ(Table(*screen_, "Lvw"), "框|GK60|6000|2.3|白|1.05|9800|3|1\n扇|SK60|6000|2.3|白|0.95|9800|3|2");
    PressIn("CmdAdd2", "frmInputXCXG", [&](QDialog& form) {
        EXPECT_EQ(form.windowTitle() + TextIn(form, "Text1(2)") + TextIn(form, "Text1(3)") +
                      TextIn(form, "Text1(4)"),
                  "添加->型材60002-");
        QTest::keyClicks(Find<QLineEdit>(&form, "Text1(5)"), "1x.0.5");
        Fill(form, {"框", "GK60", "5800"});
        SetText(form, "Text1(6)", "9700");
        Press(form, "OKButton");
        EXPECT_EQ(dialogs_.shown.size(), 1) << "the engine refuses 1.0.5";
        EXPECT_TRUE(form.isVisible());
        dialogs_.TakeShown();
        SetText(form, "Text1(5)", "1.05");
        Press(form, "OKButton");
    });
    EXPECT_EQ(Rows("Select * from 型材 where 编号=3"), "3|3|框|GK60|5800|2|-|1.05|9700")
        << "twice the same code";

    dialogs_.answers = {false, true};
    const auto rename = [&](QDialog& form) {
        SetText(form, "Text1(1)", "GK65");
        Press(form, "OKButton");
    };
    ModalScript()
        .On("frmInputXCXG", rename)
        .On("frmInputXCXG",
            [](QDialog& form) {
                EXPECT_EQ(TextIn(form, "Text1(1)"), "GK65") << "what was typed is not lost";
                Press(form, "OKButton");
            })
        .Run([&] { Press(*screen_, "CmdEdit2"); });
    const QString uses = QString::fromStdString("\n有 " + types + " 个窗型的公式引用它。");
    const QString renaming = "提示|要改“GK60”吗？" + uses;
    EXPECT_EQ(dialogs_.TakeShown(), renaming + "\n" + renaming);
    EXPECT_EQ(Rows("Select 型材型号 from 型材 where 编号=3"), "GK65");

    Find<ReportList>(screen_.get(), "Lvw")->SelectRow(0);
    ModalScript()
        .On("frmUses",
            [&](QDialog& text) {
                EXPECT_TRUE(
                    Find<QPlainTextEdit>(&text, "Text1")->toPlainText().contains("窗型的公式引用“GK60”"));
            })
        .Run([&] { Press(*screen_, "CmdUses"); });
    dialogs_.answers = {true};
    Press(*screen_, "CmdDel2");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|确认要删除该记录吗？(框)" + uses);
    EXPECT_EQ(dialogs_.usualAnswers.back(), Dialogs::Answer::No);
    EXPECT_EQ(Table(*screen_, "Lvw"), "扇|SK60|6000|2.3|白|0.95|9800|3|2\n框|GK65|5800|2|-|1.05|9700|3|3");
}

TEST_F(CatalogueFlow, PricesAreSetRaisedAndCarriedThroughAWorkbook) {
    Choose("53");
    PressIn("cmdPrice", "frmPrice", [&](QDialog& form) {
        EXPECT_EQ(form.windowTitle() + TextIn(form, "Text1"), "型材吨价格10000");
        SetText(form, "Text1", "");
        Press(form, "OKButton");
        EXPECT_EQ(dialogs_.TakeShown(), "提示！|数据不能为空！");
        SetText(form, "Text1", "9000");
        Press(form, "OKButton");
    });
    EXPECT_EQ(dialogs_.TakeShown(), "提示|已更新完毕。");
    EXPECT_EQ(Rows("Select 型材吨价格 from 型材"), "9000\n9000");
    EXPECT_TRUE(Table(*screen_, "Lvw").find("|9800|") != std::string::npos)
        << "until the node is selected again";

    dialogs_.inputs = {"10"};
    dialogs_.answers = {true};
    Press(*screen_, "CmdPercent");
    EXPECT_EQ(dialogs_.TakeShown(),
              "按百分比调价|提高百分之几（降低用负数）：\n"
              "提示|“型厂 推拉”的 2 种型材的价格都按 10% 调整，例如 9000 改为 9900。要调整吗？");
    EXPECT_EQ(Table(*screen_, "Lvw"), "框|GK60|6000|2.3|白|1.05|9900|3|1\n扇|SK60|6000|2.3|白|0.95|9900|3|2");

    SetText(*screen_, "TxtFilter", "gk");
    QTest::keyClick(Find<QLineEdit>(screen_.get(), "TxtFilter"), Qt::Key_Return);  // opens nothing
    dialogs_.files = {InFolder("a.xlsx")};
    Press(*screen_, "CmdOutput");
    dialogs_.TakeShown();
    App().Main().Execute("Delete * from 型材 where 编号=1");
    App().Main().Execute("Update 型材 set 型材吨价格=1");
    dialogs_.files = {InFolder("a.xlsx")};
    dialogs_.answers = {true};
    Press(*screen_, "CmdInput");
    EXPECT_EQ(
        dialogs_.TakeShown(),
        "提示|导入到“型厂 推拉”：新增 1 种，更改 0 种，0 种没有变化（名称和规格相同的算同一种）。要导入吗？");
    EXPECT_EQ(Rows("Select * from 型材"), "3|2|扇|SK60|6000|2.3|白|0.95|1\n3|3|框|GK60|6000|2.3|白|1.05|9900")
        << "the filter left one row to be saved";
    Choose("42");
    Press(*screen_, "CmdPercent");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|配件的价格只能逐条修改。");
}

}  // namespace
}  // namespace kalvane::test
