// From an opened project to its material, prices and settlement, through the screens.

#include "app/screens/kalvane_kernel.h"
#include "output/order_kit.h"
#include "platform/files.h"
#include "project/screens/frmOpenGC.h"
#include "support/screens/screen_kit.h"
#include "support/xlsx_reader.h"

namespace kalvane::test {
namespace {

class TallyFlow : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        for (const char* table : {"窗型材", "窗型钢", "窗板材", "窗配件", "标注", "标注2", "型材", "型钢",
                                  "玻璃", "配件", "工程门窗"}) {
            App().Main().Execute(std::string("Delete * from ") + table);
        }
        FillOrder(App().Main());
        App().Main().Execute("Update 工程 set 甲方单位='甲公司' where 编号=1");
        App().Main().Execute(
            "Insert into 工程门窗 (工程编号,门窗编号,编号,门窗名称,门窗类型,洞口宽,洞口高,樘数)"
            " values(1,6,2,'门联窗1','阳台',2400,2500,1)");
    }
    void TearDown() override {
        delete frmOpenGC::OfProject("1");
        ScreenTest::TearDown();
    }

    /// Opens frmTJJS from the project and does what the script says there.
    void AtTotals(ModalScript& script) {
        frmOpenGC::Open({"1", "", "示例工程", "", ""}, KalvaneKernel::Roads());
        script.Run([] { Press(*frmOpenGC::OfProject("1"), "CmdTotal"); });
    }
    static bool IsOn(const QWidget& screen, const char* button) {
        return Find<QPushButton>(&screen, button)->isEnabled();
    }
    static std::string Said(const char* text) { return std::string("提示|") + text; }
    std::string TakeSaid() { return dialogs_.TakeShown().toStdString(); }
    /// Saves what the preview shows as PDF.
    ModalScript::Work SaveAs(const char* name) {
        return [this, name](QDialog& preview) {
            dialogs_.files = {InFolder(name)};
            Press(preview, "CmdPdf");
        };
    }
};

TEST_F(TallyFlow, AProjectWithoutWindowsIsRefused) {
    App().Main().Execute("Delete * from 工程门窗");
    frmOpenGC::Open({"1", "", "示例工程", "", ""}, KalvaneKernel::Roads());
    Press(*frmOpenGC::OfProject("1"), "CmdTotal");
    EXPECT_EQ(TakeSaid(), Said("当前工程中无门窗！"));
}

TEST_F(TallyFlow, WindowsMoveBetweenTheLists) {
    ModalScript script;
    script.On("frmTJJS", [&](QDialog& screen) {
        for (const char* list : {"LvwR", "LvwD"}) Deselect(screen, list);
        for (const char* button : {"CmdSelect", "CmdRemove", "CmdRemoveAll", "CmdTJ", "CmdJS"}) {
            Press(screen, button);
        }
        Press(screen, "CmdSelectAll");
        Press(screen, "CmdSelectAll");
        EXPECT_EQ(TakeSaid(), Said("无可选入对象！\n") + Said("无可移除对象！\n") + Said("无可选入对象！\n") +
                                  Said("统计门窗为空！\n") + Said("决算门窗为空！\n") +
                                  Said("无可选入对象！"));
        EXPECT_EQ(Table(screen, "LvwD"), "C1|客厅|1500|1800|3||1|5|1\n门联窗1|阳台|2400|2500|1||1|6|2");
        Find<ReportList>(&screen, "LvwD")->SelectRow(0);
        Press(screen, "CmdRemove");
        EXPECT_EQ(Table(screen, "LvwR"), "C1|客厅|1500|1800|3||1|5|1");
        for (const char* button : {"CmdTJ01", "CmdTJ02", "CmdTJ03", "CmdJS01", "CmdJS02"}) {
            EXPECT_FALSE(IsOn(screen, button)) << button;
        }
        Press(screen, "CmdGJB");
        EXPECT_NE(TakeSaid(), "") << "the door's type has no profiles";
        Press(screen, "CmdMX");
        EXPECT_EQ(TakeSaid(), Said("还没有归总。请先选入门窗，再按“统计”中的“归总”。"));
    });
    AtTotals(script);
}

TEST_F(TallyFlow, MaterialIsGatheredReportedAndPutOut) {
    App().outputFileType = 1;
    settings_.Save(kSettingsApplication, kSectionMain, "DW", "乙厂");
    ModalScript script;
    script
        .On("frmTJJS",
            [&](QDialog& screen) {
                Press(screen, "CmdOut1");  // nothing gathered: the closing row alone
                EXPECT_EQ(ReadFile(folder_ / "0.txt"),
                          "\xEF\xBB\xBF材料统计表\r\n编号\t名称\t规格\t数量\t单位\t\r\n1\t\t\t\t\t\r\n");
                Press(screen, "CmdSelectAll");
                Press(screen, "CmdTJ");
                TakeSaid();
                EXPECT_TRUE(Find<QLabel>(&screen, "lblGZ")
                                ->text()
                                .contains(QStringLiteral("工程“示例工程”，2 种门窗：C1、门联窗1。")));
                Press(screen, "CmdTJ01");
                EXPECT_EQ(App().tally.label11, "乙厂材料统计表");
                EXPECT_EQ(App().tally.label10, "型材总吨数：0.0193499994277954");  // 15.48 in 32 bits * 1.25
                App().Main().Execute("Update 型材 set 型材线密度=9");
                Find<QCheckBox>(&screen, "chkXC")->setChecked(false);
                Press(screen, "CmdTJ03");
                EXPECT_EQ(App().tally.label10, "型材总吨数：0.0193499994277954") << "an earlier run's";
                Find<QCheckBox>(&screen, "chkXC")->setChecked(true);
                App().Main().Execute("Update 型材 set 型材线密度=1.25");
                Press(screen, "CmdTJ02");
                EXPECT_EQ(TakeSaid(), "");
                Press(screen, "CmdRemoveAll");
                dialogs_.files = {InFolder("2.txt")};
                Press(screen, "cmdOut2");
                EXPECT_TRUE(QString::fromStdString(TakeSaid())
                                .startsWith(QStringLiteral("提示|这是较早的归总，与现在已选用的门窗不同：")));
                EXPECT_EQ(ReadFile(folder_ / "2.txt"),
                          "\xEF\xBB\xBF材料造价表\r\n编号\t名称\t规格\t数量\t单价\t单位\t金额\t\r\n"
                          "1\t推拉框\tK60\t15.48\t11.25\t米\t174.15\t\r\n"
                          "2\t方钢\tG1\t0.6429\t10\t米\t6.4286\t\r\n"
                          "3\t单滑轮\tL1\t6\t2.5\t个\t15\t\r\n"
                          "4\t单滑轮\tL1\t0\t2.5\t个\t0\t\r\n"
                          "5\t5白玻\t-\t12.7581\t30\t平方米\t382.7439\t\r\n"
                          "6\t\t\t\t\t\t\t\r\n"
                          "以下材料在材料库中没有，其名称和单价是上一行的：\r\n"
                          "* 第 4 行，配件“S1”：C1 的“锁”\r\n"
                          // 174.15 + 6.43 + 15 + 382.74
                          "不含这些行的材料造价（准确到分）：578.32 元\r\n");
            })
        .On("frmPreview", SaveAs("1.pdf"))
        .On("frmPreview", SaveAs("3.pdf"))
        .On("frmSZZJ",
            [&](QDialog& fees) {
                Press(fees, "OKButton");
                EXPECT_EQ(TakeSaid(), Said("数据不能为空！"));
                QTest::keyClicks(Find<QLineEdit>(&fees, "Text1(0)"), QStringLiteral("1a0.5"));
                EXPECT_EQ(TextIn(fees, "Text1(0)"), QStringLiteral("10.5"));
                Press(fees, "CancelButton");
            })
        .On("frmPreview", [&](QDialog& preview) {
            EXPECT_EQ(SharedFieldSlots()[0] + SharedFieldSlots()[3], "00") << "cancelled means no fees";
            SaveAs("2.pdf")(preview);
        });
    dialogs_.files = {InFolder("0.txt")};
    AtTotals(script);
    for (const char* name : {"1.pdf", "2.pdf", "3.pdf"}) {
        EXPECT_TRUE(ReadFile(folder_ / name).starts_with("%PDF")) << name;
    }
}

TEST_F(TallyFlow, DoorsAndWindowsAreSettled) {
    ModalScript script;
    script
        .On("frmTJJS",
            [&](QDialog& screen) {
                Press(screen, "CmdSelectAll");
                Press(screen, "CmdJS");
                EXPECT_FALSE(IsOn(screen, "CmdJS01"));
                EXPECT_EQ(Rows("Select * from OutJS"), "") << "emptied before the prices are asked for";
                Press(screen, "CmdJS");
                EXPECT_TRUE(IsOn(screen, "CmdJS02"));
                EXPECT_EQ(Rows("Select XH,DJ,JE from OutJS"), "C1|350.5|2839.05\n门联窗1|400|2400");
                Press(screen, "CmdJS02");
                EXPECT_EQ(TakeSaid(), "");
                dialogs_.files = {InFolder("js.xlsx")};
                Press(screen, "cmdOutTJB");
            })
        .On("frmJSJE",
            [&](QDialog& prices) {
                QStringList notes;
                for (const QLabel* label : prices.findChildren<QLabel*>()) notes << label->text();
                EXPECT_TRUE(notes.contains(QStringLiteral("名称中有“门”字的按门计价：门联窗1（1 种）")));
                EXPECT_TRUE(notes.contains(QStringLiteral("其余的按窗计价：C1（1 种）")));
                Press(prices, "CancelButton");
            })
        .On("frmJSJE",
            [&](QDialog& prices) {
                for (const char* price : {"400", "350.5"}) {
                    QTest::keyClicks(prices.focusWidget(), QLatin1String(price));
                    QTest::keyClick(prices.focusWidget(), Qt::Key_Return);
                }
            })
        .On("frmPreview", SaveAs("js.pdf"));
    App().Main().Execute("Insert into OutJS (BN) values(7)");
    AtTotals(script);
    EXPECT_EQ(SharedFieldSlots()[4], "甲公司");
    // 1500*1800/1000000*3 = 8.1
    EXPECT_EQ(XlsxReader(folder_ / "js.xlsx").Sheet(1).cells,
              "A1=工程面积统计表|B1=|C1=|D1=|E1=|F1=|G1=|H1=\n"
              "A2=名称|B2=规格|C2=宽度|D2=高度|E2=数量|F2=平方数|G2=|H2=\n"
              "A3=C1|B3=客厅|C3=#1500|D3=#1800|E3=#3|F3=#8.1|G3=#350.5|H3=#2839.05\n"
              "A4=门联窗1|B4=阳台|C4=#2400|D4=#2500|E4=#1|F4=#6|G4=#400|H4=#2400\n");
}

TEST_F(TallyFlow, ARowIsTracedToItsFormulasByDoubleClick) {
    ModalScript script;
    script
        .On("frmTJJS",
            [&](QDialog& screen) {
                Press(screen, "CmdSelectAll");
                Press(screen, "CmdTJ");
                Press(screen, "CmdMX");
            })
        .On("frmTJMX",
            [&](QDialog& screen) {
                auto* tally = Find<ReportList>(&screen, "LvwTJ");
                EXPECT_EQ(tally->Text(3, 7), QStringLiteral("* 材料库中没有"));
                EXPECT_EQ(tally->topLevelItem(4)->toolTip(6), QStringLiteral("准确金额 382.74 元"));
                QTest::mouseDClick(tally->viewport(), Qt::LeftButton, {},
                                   tally->visualItemRect(tally->topLevelItem(0)).center());
                EXPECT_EQ(Table(screen, "LvwMX"),
                          "C1|客厅|3|框B|B-60|1500-60|1440||6\nC1|客厅|3|框H|h-h1-60|1800-600-60|1140||6");
                Deselect(screen, "LvwMX");
                Press(screen, "CmdDesign");
                EXPECT_EQ(TakeSaid(), Said("请先双击上面的一行，再选取下面的一条公式。"));
                Find<ReportList>(&screen, "LvwMX")->SelectRow(0);
                Press(screen, "CmdDesign");
                Find<QComboBox>(&screen, "cmbTJ")->setCurrentIndex(1);
                EXPECT_EQ(tally->Text(0, 2), QStringLiteral("1140"));
                tally->SelectRow(0);
                QTest::mouseDClick(tally->viewport(), Qt::LeftButton, {},
                                   tally->visualItemRect(tally->topLevelItem(0)).center());
                EXPECT_EQ(Table(screen, "LvwMX"), "C1|客厅|3|框H|h-h1-60|1800-600-60|1140||6");
            })
        .On("FrmMCGS", [](QDialog&) {});
    AtTotals(script);
}

}  // namespace
}  // namespace kalvane::test
