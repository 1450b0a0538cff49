// The road from a project to its cutting plan and the plan's output, through the screens.

#include "app/screens/kalvane_kernel.h"
#include "optimise/screens/PYH02.h"
#include "optimise/screens/frmYHMain.h"
#include "platform/files.h"
#include "project/screens/frmOpenGC.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

class PlanFlow : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        App().optimise.CLC = 6000;
        App().optimise.LTC = 10;
        App().optimise.CKK = 5;
        // Two panes of 1000 x 1200: their beads PK60-08 are four of 920 and four of 1120, 20 more on the bar.
        for (const char* sql : {
                 "Insert into 工程 (编号,工程名称) values(2,'阳光花园')",
                 "Insert into 工程门窗 (工程编号,门窗编号,编号,门窗名称,樘数) values(2,1,50,'C1',2)",
                 "Insert into 标注 (Mcnum,MC,schar) values(50,'B','1000')",
                 "Insert into 标注 (Mcnum,MC,schar) values(50,'H','1200')",
             }) {
            App().Main().Execute(sql);
        }
    }

    static void Choose(const QWidget& screen, const QString& text) {
        auto* offered = Find<ReportList>(&screen, "LvwR");
        for (int row = 0; row < offered->RowCount(); ++row) {
            if (offered->Text(row, 0) != text) continue;
            offered->SelectRow(row);
            Press(screen, "CmdMove");
            return;
        }
        ADD_FAILURE() << "not offered: " << text.toStdString();
    }
};

TEST_F(PlanFlow, FromTheModuleToThePlan) {
    // A bar holds 4 x 1140 + 940 = 5500 of 6000, the next one 3 x 940 = 2820. The mean ratio of the two is
    // taken over floats of 7 digits. Rows come in the order of their texts.
    const struct {
        bool second;
        const char *scheme, *cuts, *totals;
    } cases[] = {
        {false, "优化方案一", "PK60-08|1120*4+920|1|0.9166667|500\n|920*3|1|0.47|3180", "PK60-08|2|0.69333"},
        {true, "优化方案二", "PK60-08|920*3|1|47|3180\n|920+1120*4|1|91.67|500", "PK60-08|2|69.33"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.scheme);
        ModalScript()
            .On("frmYHMain",
                [&](QDialog& module) {
                    QAction* scheme = Find<QAction>(&module, "Toolbar1(1)");
                    if (c.second) scheme->trigger();
                    EXPECT_EQ(scheme->text().toStdString(), c.scheme);
                    Find<QAction>(&module, "Toolbar1(3)")->trigger();
                })
            .On("frmCreate01",
                [&](QDialog& step) {
                    Deselect(step, "LVW");
                    Press(step, "CmdNext");
                    EXPECT_EQ(dialogs_.TakeShown(), "提示|无选择的工程");
                    Find<ReportList>(&step, "LVW")->SelectRow(1);
                    Press(step, "CmdNext");
                })
            .On("frmCreate02",
                [&](QDialog& step) {
                    Deselect(step, "LvwR");
                    for (const char* button : {"CmdMove", "CmdRemove", "CmdNext"}) Press(step, button);
                    EXPECT_EQ(dialogs_.TakeShown(),
                              "提示|无选择移动对象\n提示|无选择移除对象\n提示|无选择所需优化门窗");
                    Press(step, "CmdMoveAll");
                    EXPECT_EQ(Table(step, "LvwD"), "C1|||2|1|50");
                    Press(step, "CmdNext");
                })
            .On("frmCreate03",
                [&](QDialog& step) {
                    EXPECT_EQ(Table(step, "LvwR"), "GK-35x28\nPK60-02\nPK60-08");
                    Press(step, "CmdMoveAll");
                    Press(step, "CmdRemoveAll");
                    Choose(step, "PK60-08");
                    Press(step, "CmdNext");
                    const auto* bar = Find<QProgressBar>(&step, "ProgressBar");
                    EXPECT_EQ(bar->maximum(), 2);
                    EXPECT_EQ(bar->value(), 2);
                    EXPECT_FALSE(bar->isVisible());
                })
            .On("frmResult",
                [&](QDialog& result) {
                    EXPECT_EQ(Table(result, "Lvw1"), c.cuts);
                    EXPECT_EQ(Table(result, "Lvw2").substr(0, std::string(c.totals).size()), c.totals);
                })
            .Run([] { PYH02().YH02Show(nullptr); });
    }
    EXPECT_EQ(App().optimiseProjectName, "阳光花园");
    EXPECT_TRUE(dialogs_.shown.isEmpty());
}

TEST_F(PlanFlow, FromAnOpenProjectToTheOutputs) {
    App().YHScheme = 1;  // as the module may have left it
    frmOpenGC::Open({"2", "", "阳光花园", "", ""}, KalvaneKernel::Roads());
    frmOpenGC* opened = frmOpenGC::OfProject("2");
    dialogs_.files = {QString(), InFolder("plan.txt"), InFolder("plan.xlsx"), InFolder("cuts.pdf"),
                      InFolder("totals.pdf")};
    const auto savePdf = [](QDialog& preview) { Press(preview, "CmdPdf"); };
    ModalScript()
        .On("frmCreate02",
            [](QDialog& step) {
                EXPECT_EQ(App().YHScheme, 0);
                Choose(step, "C1");
                Press(step, "CmdNext");
            })
        .On("frmCreate03",
            [](QDialog& step) {
                Press(step, "CmdNext");  // with no material: empty tables
                Choose(step, "PK60-08");
                Press(step, "CmdNext");
            })
        .On("frmResult", [](QDialog& result) { EXPECT_EQ(Table(result, "Lvw1"), ""); })
        .On("frmResult",
            [](QDialog& result) {
                App().outputFileType = 1;
                Press(result, "CmdSave");  // cancelled
                Press(result, "CmdSave");
                App().outputFileType = 0;
                Press(result, "CmdSave");
                Press(result, "cmdPrint");
                Press(result, "cmdPrint1");
            })
        .On("frmPreview", savePdf)
        .On("frmPreview", savePdf)
        .Run([&] { Press(*opened, "cmdYH"); });
    EXPECT_EQ(dialogs_.filters.mid(1, 2), QStringList({"*.txt|*.txt", "Excel 工作簿|*.xlsx"}));
    const std::string written = ReadFile(folder_ / "plan.txt");
    EXPECT_NE(written.find("\tPK60-08\t1120*4+920\t1\t0.9166667\t500"), std::string::npos) << written;
    EXPECT_NE(written.find("工程名称：阳光花园"), std::string::npos);
    EXPECT_EQ(ReadFile(folder_ / "plan.xlsx").substr(0, 4), "PK\x03\x04");  // a zip, as .xlsx is
    for (const char* pdf : {"cuts.pdf", "totals.pdf"}) EXPECT_GT(ReadFile(folder_ / pdf).size(), 5000U);
    // No desktop here to open it with: the operator hears of that and of where the file is.
    const QString saved = "提示|已保存到：";
    EXPECT_EQ(dialogs_.shown, QStringList({saved + InFolder("plan.txt"),
                                           "提示|确认您的系统中是否安装了Excel软件或版本不兼容！",
                                           saved + InFolder("plan.xlsx")}));
    EXPECT_EQ(dialogs_.names.mid(1, 2).join(QLatin1Char(' ')), "阳光花园-材料优化 阳光花园-材料优化");
    delete opened;
}

}  // namespace
}  // namespace kalvane::test
