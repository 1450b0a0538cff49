// Component sheets and the short table, from the opened project to the paper.

#include "app/screens/kalvane_kernel.h"
#include "output/screens/FrmEasyGJBReport.h"
#include "platform/files.h"
#include "project/screens/frmOpenGC.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

class SheetFlow : public ScreenTest {
  protected:
    void TearDown() override {
        delete frmOpenGC::OfProject("1");
        ScreenTest::TearDown();
    }

    frmOpenGC* OpenSample() {
        frmOpenGC::Open({"1", "YL-2026-001", "示例工程", "", ""}, KalvaneKernel::Roads());
        return frmOpenGC::OfProject("1");
    }

    static bool IsEnabled(const QWidget& screen, const char* button) {
        return Find<QPushButton>(&screen, button)->isEnabled();
    }
    /// The page box, and which of the two commands work: "共2页第1页 -+".
    static std::string Paging(const QWidget& screen, const char* box) {
        return TextIn(screen, box).toStdString() + (IsEnabled(screen, "CmdPrev") ? " +" : " -") +
               (IsEnabled(screen, "CmdNext") ? "+" : "-");
    }
    /// Saves what a print command brings up, and returns how many pages it has.
    ModalScript::Work SaveAndCount(QString& pages) {
        return [this, &pages](QDialog& preview) {
            dialogs_.files = {InFolder("sheets.pdf")};
            Press(preview, "CmdPdf");
            pages = QString::number(Find<QSpinBox>(&preview, "TxtLast")->maximum());
        };
    }
};

TEST_F(SheetFlow, SheetsAreRefusedWithoutAWindow) {
    frmOpenGC* opened = OpenSample();
    Deselect(*opened, "Lvw");
    Press(*opened, "CmdPrint");
    App().Main().Execute("Delete * from 工程门窗");
    opened->SetProject({"1", "YL-2026-001", "示例工程", "", ""});
    Press(*opened, "CmdPrint");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|当前工程中没有可打印的门窗！\n提示|当前工程中没有可打印的门窗！");
}

TEST_F(SheetFlow, EachWindowHasItsSheet) {
    App().settings->Save(kSettingsApplication, kSectionMain, "AUTONUM", "100");
    App().Main().Execute("Update 窗型材 set 规格=Null where 窗号=12 and 编号=90");
    frmOpenGC* opened = OpenSample();
    auto* windows = Find<ReportList>(opened, "Lvw");
    windows->SelectRow(11);
    QString one;
    QString rest;
    ModalScript()
        .On("FrmGJB",
            [&](QDialog& sheet) {
                EXPECT_EQ(Paging(sheet, "txtPage"), "共33页第12页 ++");
                const char* const kHead[] = {
                    "示例工程", "望溪置业有限公司", "C12---楼梯间", "YL-2026-001", "012", "宽1000高1500",
                    "4"};
                for (int i = 0; i < 7; ++i) {
                    EXPECT_EQ(TextIn(sheet, QStringLiteral("Text1(%1)").arg(i).toLatin1()), kHead[i]);
                }
                EXPECT_EQ(TextIn(sheet, "Text1(7)"), QDate::currentDate().toString("yyyy/M/d"));
                // B 1000, H 1500, h1 550, four units.
                EXPECT_EQ(Table(sheet, "lvw")
                              .find("序号|型材名称|型材代号|型材长度|数量\n"
                                    "1|框B|PK60-01|1006|8\n"
                                    "2|框H|PK60-01|1506|8\n"
                                    "3|横中梃|PK60-05|970|4\n"
                                    "4|扇B|PK60-03|902|8\n"
                                    "5|扇H|PK60-03|470|8\n"),
                          0U);
                EXPECT_TRUE(Find<QLabel>(&sheet, "LblNote")->text().contains("型材9“固定压条H”"));

                auto* lvw = Find<ReportList>(&sheet, "lvw");
                for (const int row : {0, 5}) {  // a heading has nothing to say
                    lvw->SelectRow(row);
                    Q_EMIT lvw->itemDoubleClicked(lvw->topLevelItem(row), 0);
                }
                EXPECT_EQ(dialogs_.TakeShown(),
                          "提示|扇H  PK60-03\n长度：h1-60-42+2*8+6 → 550-60-42+2*8+6 = 470\n"
                          "每樘：2 → 2 = 2，舍去小数，樘数 4，数量 8\n"
                          "标注：h1 = 550，h2 = 950，B = 1000，H = 1500");

                Press(sheet, "CmdNext");
                EXPECT_EQ(TextIn(sheet, "Text1(4)"), "013");
                for (int i = 13; i > 1; --i) Press(sheet, "CmdPrev");
                EXPECT_EQ(Paging(sheet, "txtPage"), "共33页第1页 -+");
                Find<QCheckBox>(&sheet, "chkBL")->setChecked(true);
                Press(sheet, "CmdPrint");
                for (int i = 1; i < 33; ++i) Press(sheet, "CmdNext");
                EXPECT_EQ(Paging(sheet, "txtPage"), "共33页第33页 +-");
                Press(sheet, "CmdPrintNextAll");
                dialogs_.files = {InFolder("all.pdf")};
                Press(sheet, "CmdPDF");
                EXPECT_TRUE(dialogs_.TakeShown().startsWith("提示|已保存到："));
            })
        .On("frmPreview", SaveAndCount(one))
        .On("frmPreview", SaveAndCount(rest))
        .Run([&] { Press(*opened, "CmdPrint"); });
    EXPECT_EQ(one, "1");
    // The door's type has 28 formula rows, that of its side windows 14, each with four headings: 50 lines.
    EXPECT_EQ(rest, "2") << "the last window's sheet and its continuation";
    EXPECT_TRUE(ReadFile(folder_ / "all.pdf").starts_with("%PDF"));
}

TEST_F(SheetFlow, AProjectOfOneWindowHasOnePage) {
    App().Main().Execute("Delete * from 工程门窗 where 编号>1");
    frmOpenGC* opened = OpenSample();
    ModalScript()
        .On("FrmGJB", [](QDialog& sheet) { EXPECT_EQ(Paging(sheet, "txtPage"), "共1页 --"); })
        .Run([&] { Press(*opened, "CmdPrint"); });
}

TEST_F(SheetFlow, TheShortTableIsTurnedPrintedAndSaved) {
    std::vector<WindowEntry> windows = ListWindows(App().Main(), "1");
    WindowEntry composite = windows[0];
    composite.name = "组合1";
    composite.typeNumber = "-3";
    ShowShortTable({}, "示例工程", nullptr);
    ShowShortTable(std::vector{composite}, "示例工程", nullptr);
    EXPECT_EQ(dialogs_.TakeShown(), "提示|构件门窗为空！\n提示|无可购件数据！");

    windows.resize(5);
    windows.push_back(composite);
    QString all;
    ModalScript()
        .On("FrmEasyGJBReport",
            [&](QDialog& report) {
                EXPECT_EQ(Paging(report, "TxtPage"), "共2页第1页 -+");
                Press(report, "CmdNext");
                EXPECT_EQ(Paging(report, "TxtPage"), "共2页第2页 +-");
                EXPECT_EQ(Find<QLabel>(&report, "LblNote")->text(), "没有列入：组合1（组合门窗）");
                report.resize(400, 300);
                QApplication::processEvents();
                auto* scroll = Find<QScrollBar>(&report, "VS");
                EXPECT_GT(scroll->maximum(), 0);
                scroll->setValue(100);
                EXPECT_EQ(Find<QWidget>(&report, "PicGJB")->y(), -100);
                Press(report, "Command1");
                dialogs_.files = {InFolder("short.pdf")};
                Press(report, "CmdPDF");
            })
        .On("frmPreview", SaveAndCount(all))
        .Run([&] { ShowShortTable(windows, "示例工程", nullptr); });
    EXPECT_EQ(all, "2");
    EXPECT_TRUE(ReadFile(folder_ / "short.pdf").starts_with("%PDF"));
}

}  // namespace
}  // namespace kalvane::test
