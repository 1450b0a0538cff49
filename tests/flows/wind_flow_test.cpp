// The wind-pressure checks through their screens: typed or taken from a project, to the report and its files.

#include "app/screens/MDIMain.h"
#include "platform/files.h"
#include "project/screens/choose_windows.h"
#include "support/screens/screen_kit.h"
#include "wind/screens/FrmMainFY01.h"
#include "wind/screens/frmFY.h"

namespace kalvane::test {
namespace {

class WindFlow : public ScreenTest {
  protected:
    static void Pick(const QWidget& screen, const char* list, const char* text) {
        Find<QComboBox>(&screen, list)->setCurrentText(QString::fromUtf8(text));
    }

    static void TypeSash(const QWidget& screen) {
        SetText(screen, "txtBLCD", "650");
        SetText(screen, "txtBLGD", "1250");
        SetText(screen, "txtSKD", "750");
        SetText(screen, "txtSGD", "1400");
    }

    static void TypeSite(const QWidget& screen) {
        Pick(screen, "Combo1", "超高层建筑物");
        Pick(screen, "Combo2", "B类");
        Pick(screen, "Combo3", "30");
    }

    /// Chooses windows of the sample project by their names.
    static void Choose(QDialog& choice, const QStringList& names) {
        auto* list = Find<ReportList>(&choice, "Lvw");
        list->clearSelection();
        for (int row = 0; row < list->RowCount(); ++row) {
            list->topLevelItem(row)->setSelected(names.contains(list->Text(row, 0)));
        }
        Press(choice, "OKButton");
    }

    static QString Report(const QWidget& result, const char* box) {
        return Find<QTextEdit>(&result, box)->toPlainText();
    }

    std::string FileText(const char* name) const { return ReadFile(folder_ / name); }
};

TEST_F(WindFlow, MenuOpensTheModelOfTheSettings) {
    MDIMain frame;
    frame.Load();
    frame.show();
    ModalScript().On("frmFY", [](QDialog&) {}).Run([&] { Find<QAction>(&frame, "mnuFYJH")->trigger(); });
    ModalScript()
        .On("frmSetting",
            [](QDialog& settings) {
                Find<QRadioButton>(&settings, "optStandard")->setChecked(true);
                Press(settings, "cmdOK");
            })
        .Run([&] { Find<QAction>(&frame, "mnuPath")->trigger(); });
    ModalScript().On("FrmMainFY01", [](QDialog&) {}).Run([&] { Find<QAction>(&frame, "x9")->trigger(); });
}

TEST_F(WindFlow, SlidingWindowIsTypedCheckedAndSaved) {
    dialogs_.files = {InFolder("r.pdf"), InFolder("r.txt")};
    ModalScript()
        .On("frmFY",
            [&](QDialog& screen) {
                EXPECT_FALSE(Find<QLineEdit>(&screen, "txtLZKD")->isEnabled());
                Pick(screen, "cmbMCLX", "二扇带亮推拉窗");
                EXPECT_TRUE(Find<QLineEdit>(&screen, "txtLZKD")->isEnabled());
                Pick(screen, "cmbMCLX", "二扇推拉窗");
                Pick(screen, "cmbXGBH", "1.5mm");
                EXPECT_EQ(TextIn(screen, "txtXGGXG"), "1.2428");
                Pick(screen, "cmbXGBH", "1.2mm");
                QTest::keyClicks(Find<QLineEdit>(&screen, "txtSKD"), "a7-5.0");  // other keys are dropped
                EXPECT_EQ(TextIn(screen, "txtSKD"), "75.0");
                Press(screen, "Command1");
                EXPECT_EQ(dialogs_.TakeShown(), "|玻璃宽度不能为空！");
                EXPECT_EQ(screen.focusWidget()->objectName(), "txtBLCD");
                TypeSash(screen);
                SetText(screen, "txtFYZ", "0");
                Press(screen, "Command1");
                EXPECT_TRUE(dialogs_.TakeShown().startsWith("|除数为零"));
                SetText(screen, "txtFYZ", "0.8");
                Press(screen, "Command1");
                Press(screen, "OKButton");
            })
        .On("frmFyResult",
            [&](QDialog& result) {
                const QString report = Report(result, "rtResult");
                EXPECT_TRUE(report.contains("Fmax = 1.544293mm\n")) << report.toStdString();
                EXPECT_TRUE(report.endsWith("校核结果：合格\n"));
                QTextCursor title(Find<QTextEdit>(&result, "rtResult")->document());
                title.setPosition(10);
                EXPECT_EQ(title.charFormat().fontPointSize(), 24);
                title.setPosition(40);
                EXPECT_EQ(title.charFormat().fontPointSize(), 14);
                const QString html = Find<QTextBrowser>(&result, "rtFH")->toHtml();
                EXPECT_TRUE(html.contains("报告合格，按一致单位复核不合格"));
                EXPECT_TRUE(html.contains("color:#c00000"));
                Press(result, "CmdPDF");
                Find<QCheckBox>(&result, "chkFH")->setChecked(false);
                Press(result, "CmdText");
            })
        .Run([] { frmFY(ChooseWindowsForCheck, nullptr).exec(); });
    EXPECT_EQ(dialogs_.TakeShown().count('\n'), 1);  // where the files are
    EXPECT_TRUE(FileText("r.pdf").starts_with("%PDF"));
    EXPECT_NE(FileText("r.txt").find("\r\n\t\t\t塑钢门窗抗风压校核报告\r\n"), std::string::npos);
    EXPECT_EQ(FileText("r.txt").find("附：复核"), std::string::npos);
}

TEST_F(WindFlow, SiteOfAReportIsOfferedTheNextTime) {
    ModalScript()
        .On("frmFY",
            [](QDialog& screen) {
                TypeSash(screen);
                SetText(screen, "txtCS", "杭州");
                SetText(screen, "txtFYZ", "0.55");
                Press(screen, "Command1");
                Press(screen, "OKButton");
            })
        .On("frmFyResult", [](QDialog&) {})
        .Run([] { frmFY(ChooseWindowsForCheck, nullptr).exec(); });
    ModalScript()
        .On("frmFY",
            [](QDialog& screen) {
                QCompleter* sites = Find<QLineEdit>(&screen, "txtCS")->completer();
                ASSERT_EQ(sites->completionModel()->rowCount(), 1);
                Q_EMIT sites->activated(sites->completionModel()->index(0, 0));
                EXPECT_EQ(TextIn(screen, "txtFYZ"), "0.55");
            })
        .Run([] { frmFY(ChooseWindowsForCheck, nullptr).exec(); });
}

// C17 is a window of two sashes of 750 × 1239 with a top light; C1 has no sash; C5 is of 1200 × 1400.
TEST_F(WindFlow, WindowsAreTakenFromAProject) {
    ModalScript()
        .On("frmFY",
            [&](QDialog& screen) {
                Press(screen, "CmdQZGC");
                EXPECT_EQ(TextIn(screen, "txtGCMC"), "示例工程");
                EXPECT_EQ(TextIn(screen, "txtMCCC"), "1500*1800");
                EXPECT_EQ(TextIn(screen, "txtSKD"), "750");
                EXPECT_EQ(TextIn(screen, "txtLZGD"), "500");
                EXPECT_EQ(Find<QComboBox>(&screen, "cmbMCLX")->currentText(), "二扇带亮推拉窗");
                Press(screen, "CmdQZGC");
                Press(screen, "OKButton");
            })
        .On("frmFYGC", [](QDialog& choice) { Choose(choice, {"C17"}); })
        .On("frmFYGC",
            [](QDialog& choice) {
                Choose(choice, {"C1", "C5", "C17"});
            })
        .On("frmFyResult",
            [&](QDialog& result) {
                auto* list = Find<ReportList>(&result, "LvwJL");
                ASSERT_EQ(list->RowCount(), 3);
                EXPECT_EQ(list->Row(2).mid(1, 2), (QStringList{"C1：扇宽度不能为空!", "未校核"}));
                list->SelectRow(1);
                EXPECT_TRUE(Report(result, "rtResult").contains("二扇带亮推拉窗 C17 (设计尺寸：1500*1800)"));
            })
        .Run([] { frmFY(ChooseWindowsForCheck, nullptr).exec(); });
}

TEST_F(WindFlow, FullCheckGoesForthAndBackWithoutLosingWhatWasTyped) {
    ModalScript()
        .On("FrmMainFY01",
            [&](QDialog& base) {
                Press(base, "CmdNext");
                TypeSite(base);
                SetText(base, "Text6", "");
                Press(base, "CmdNext");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|数据不能为空！\n提示|阵风系数不能为空!");
                EXPECT_EQ(base.focusWidget()->objectName(), "Text6");
                SetText(base, "Text6", "1.92");
                Press(base, "CmdNext");
                EXPECT_EQ(TextIn(base, "Text1"), "示例工程 C17");
                Press(base, "CmdNext");
                QTest::keyClick(&base, Qt::Key_Escape);  // the report holds what was typed: no question
            })
        .On("frmFY01",
            [&](QDialog& detail) {
                EXPECT_EQ(TextIn(detail, "Text5"), "");
                SetText(detail, "Text11", "1776");
                EXPECT_EQ(TextIn(detail, "Text5"), "0.5");
                SetText(detail, "Text12", "");
                EXPECT_EQ(TextIn(detail, "Text5"), "0.5");
                SetText(detail, "Text12", "888");
                SetText(detail, "Text7", "0");
                Press(detail, "OKButton");
                EXPECT_TRUE(dialogs_.TakeShown().startsWith("|除数为零：“玻璃厚度(mm)”"));
                SetText(detail, "Text7", "6");
                Press(detail, "OKButton");
            })
        .On("FrmResultFY01",
            [](QDialog& result) {
                EXPECT_EQ(Report(result, "RTB").count('\n'), 217);
                Press(result, "OKButton");
            })
        .On("frmFY01",
            [](QDialog& detail) {
                EXPECT_EQ(TextIn(detail, "Text11"), "1776");
                Press(detail, "CmdQZGC");
                EXPECT_EQ(TextIn(detail, "Text2"), "1800");
                Press(detail, "CmdQZGC");
            })
        .On("frmFYGC", [](QDialog& choice) { Choose(choice, {"C17"}); })
        .On("frmFYGC",
            [](QDialog& choice) {
                Choose(choice, {"C1", "C17"});
            })
        .On("FrmResultFY01",
            [](QDialog& result) {
                EXPECT_EQ(Find<ReportList>(&result, "LvwJL")->RowCount(), 2);
                Press(result, "OKButton");
            })
        .On("frmFY01", [](QDialog& detail) { Press(detail, "CancelButton"); })
        .On("frmFY01", [](QDialog& detail) { EXPECT_EQ(TextIn(detail, "Text2"), "1800"); })
        .Run([] { FrmMainFY01(ChooseWindowsForCheck, nullptr).exec(); });
}

TEST_F(WindFlow, CoverIsKeptButItsDate) {
    ModalScript()
        .On("FrmMainFY01",
            [](QDialog& base) {
                Press(base, "CmdFM");
                Press(base, "CmdFM");
                Press(base, "CmdFMPrint");
            })
        .On("frmFM01",
            [](QDialog& cover) {
                SetText(cover, "Text1", "海景");
                SetText(cover, "Text5", "2000年1月1日");
                Press(cover, "OKButton");
            })
        .On("frmFM01",
            [](QDialog& cover) {
                EXPECT_EQ(TextIn(cover, "Text1"), "海景");
                EXPECT_EQ(TextIn(cover, "Text5"), QDate::currentDate().toString("yyyy年M月d日"));
                SetText(cover, "Text1", "山景");
                Press(cover, "CancelButton");
            })
        .On("frmPreview", [](QDialog&) {})
        .Run([] { FrmMainFY01(ChooseWindowsForCheck, nullptr).exec(); });
    EXPECT_EQ(settings_.Read("Tesmar", "FM", "GCMC", ""), "海景");
}

}  // namespace
}  // namespace kalvane::test
