// A list typed by hand, its file, the plan as bars, labels and tables, and what a long run does to the
// screen.

#include <ctime>

#include "numeric/error.h"
#include "optimise/plan.h"
#include "optimise/screens/frmHandup.h"
#include "optimise/screens/frmResult.h"
#include "platform/files.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

class ManualPlanFlow : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        App().optimise.CLC = 6000;
        App().optimise.LTC = 10;
        App().optimise.CKK = 5;
    }

    static void Type(QWidget& screen, const char* keys) {
        for (const char* key = keys; *key != '\0'; ++key) {
            QTest::keyClick(screen.focusWidget(), *key == '\n' ? '\r' : *key);
        }
    }
};

TEST_F(ManualPlanFlow, ATypedListIsKeptInAFileAndChecked) {
    frmHandup screen(nullptr);
    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    EXPECT_EQ(screen.windowTitle(), "手工优化  控制结点数：20");
    for (const char* button : {"CmdDel", "CmdSave", "OKButton"}) Press(screen, button);
    SetText(screen, "TxtName", "PK60");
    Press(screen, "OKButton");
    EXPECT_EQ(
        dialogs_.TakeShown(),
        "提示|无删除数据！\n提示|数据为空不能保存！\n提示|材料名称不能为空！\n提示|优化的数据不能为空！");

    // Length, Enter, count, Enter, and Enter on the button; what is no digit is not taken.
    Find<QLineEdit>(&screen, "TxtCD")->setFocus();
    Type(screen, "20x00\n3-\n\n1500.\n4\n\n\n");
    EXPECT_EQ(Table(screen, "lvw"), "2000|3\n1500.|4");
    EXPECT_EQ(screen.focusWidget()->objectName(), "TxtSL");
    Press(screen, "CmdAdd");  // no length
    Type(screen, "6000\n1\n\n");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|数据不能为空！\n提示|数据大于6000！");
    EXPECT_EQ(dialogs_.icons.back(), NoticeIcon::Error);
    EXPECT_EQ(screen.focusWidget()->objectName(), "TxtCD");

    dialogs_.files = {QString(), InFolder("a.DDD"), QString(), InFolder("a.DDD")};
    for (const char* button : {"CmdSave", "CmdSave", "CmdOpen", "CmdOpen"}) Press(screen, button);
    EXPECT_EQ(ReadFile(folder_ / "a.DDD"), "2000\r\n3\r\n1500.\r\n4\r\n");
    EXPECT_EQ(Table(screen, "lvw"), "2000|3\n1500.|4\n2000|3\n1500.|4");
    EXPECT_EQ(dialogs_.filters, QStringList(4, "化数据文件*.DDD|*.DDD"));
    Find<ReportList>(&screen, "lvw")->SelectRow(0);
    Find<ReportList>(&screen, "lvw")->setFocus();
    QTest::keyClick(Find<ReportList>(&screen, "lvw"), Qt::Key_Delete);
    Press(screen, "CmdDel");
    EXPECT_EQ(Table(screen, "lvw"), "2000|3\n1500.|4");

    // A damaged file gives its good rows and says what it lacks; so does a table, pasted into a box too.
    WriteFileAtomically(folder_ / "b.DDD", "800\n5\n700\n");
    dialogs_.files = {InFolder("b.DDD")};
    Press(screen, "CmdOpen");
    QGuiApplication::clipboard()->setText("长度\t数量\n９00\t6\n7000\t1\n");
    QTest::keyClick(Find<QLineEdit>(&screen, "TxtCD"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Table(screen, "lvw"), "2000|3\n1500.|4\n800|5\n900|6");
    ASSERT_EQ(dialogs_.shown.size(), 2);
    EXPECT_TRUE(dialogs_.shown[0].endsWith("第 3 行：长度“700”后缺少数量"));
    EXPECT_TRUE(dialogs_.shown[1].endsWith("第 3 行：长度“7000”：数据大于6000！"));
    EXPECT_EQ(TextIn(screen, "TxtCD"), "6000");  // as it was
}

TEST_F(ManualPlanFlow, FromTheListToBarsLabelsAndTables) {
    // Of 6000: with 20 more on each piece, 2020 + 2020 + 1520 leaves 440, 2020 + 1520 * 2 + 820 leaves 120,
    // 1520 + 820 * 4 leaves 1200; the need is 3 * 2.02 + 4 * 1.52 + 5 * 0.82 = 16.24 m, 2.7 bars.
    const struct {
        std::int16_t scheme;
        const char *cuts, *ratio;
    } cases[] = {
        {0, "1500+800*4|1|0.8|1200\n|2000*2+1500|1|0.9266667|440\n|2000+1500*2+800|1|0.98|120", "0.90222"},
        {1, "800*3+1500+2000|1|100|0\n|800+1500*2+2000|1|98|120\n|800+1500+2000|1|72.67|1640", "90.223"},
    };
    for (const auto& c : cases) {
        App().YHScheme = c.scheme;
        frmHandup screen(nullptr);
        screen.show();
        QGuiApplication::clipboard()->setText("2000,3\n1500,4\n800,5\n");
        Press(screen, "CmdPaste");
        SetText(screen, "TxtName", "PK60");
        dialogs_.files = {InFolder("bars.pdf"), InFolder("labels.pdf")};
        ModalScript()
            .On("frmResult",
                [&](QDialog& result) {
                    EXPECT_EQ(Table(result, "Lvw1"), std::string("PK60|") + c.cuts);
                    QTRY_VERIFY(!Find<ReportList>(&result, "Lvw2")->Text(0, 5).contains("…"));
                    const QStringList totals = Find<ReportList>(&result, "Lvw2")->Row(0);
                    EXPECT_TRUE(totals[2].startsWith(QLatin1String(c.ratio))) << totals[2].toStdString();
                    EXPECT_EQ(totals.mid(3).join(QLatin1Char('|')), "3|16.24|3");
                    Find<QTabWidget>(&result, "Tab1")->setCurrentIndex(2);
                    const QImage bars = Find<QWidget>(&result, "PicCut")->grab().toImage();
                    QSet<QRgb> colours;
                    for (int y = 0; y < bars.height(); y += 3) {
                        for (int x = 0; x < bars.width(); x += 3) colours << bars.pixel(x, y);
                    }
                    // Three lengths, the loss behind a piece.
                    EXPECT_TRUE(colours.contains({0xFF9ECAF5, 0xFFFFE9A0, 0xFF95D38F, 0xFF5A5A5A}));
                    Press(result, "CmdPrintCut");
                    Press(result, "CmdLabels");
                })
            .On("frmPreview", [](QDialog& preview) { Press(preview, "CmdPdf"); })
            .On("frmPreview", [](QDialog& preview) { Press(preview, "CmdPdf"); })
            .Run([&] { Press(screen, "OKButton"); });
        for (const char* file : {"bars.pdf", "labels.pdf"}) {
            EXPECT_TRUE(ReadFile(folder_ / file).starts_with("%PDF-")) << file;
        }
        EXPECT_TRUE(Find<QStatusBar>(&screen, "StatusBar")->currentMessage().startsWith("起始时间："));
        EXPECT_FALSE(Find<QLabel>(&screen, "Label4")->isVisible());
    }
    EXPECT_TRUE(dialogs_.shown.isEmpty());
}

/// Time that this process has worked, milliseconds: a busy machine does not count against it.
double WorkedMilliseconds() {
    return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

TEST_F(ManualPlanFlow, ALongRunLeavesTheScreenAliveAndIsCancelled) {
    App().YHScheme = 1;
    App().optimise.NODES = 1000;  // a search over all pieces, for each bar
    for (const char* by : {"CmdCancelRun", "closing"}) {
        frmHandup screen(nullptr);
        screen.show();
        // Lengths that leave a search no exact fit for long.
        QString table;
        for (int i = 0; i < 100; ++i) table += QStringLiteral("%1\t9\n").arg(411 + 7 * i);
        QGuiApplication::clipboard()->setText(table);
        Press(screen, "CmdPaste");
        SetText(screen, "TxtName", "M");

        double longestGap = 0;
        double last = 0;
        int looks = 0;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, [&] {
            if (last > 0) longestGap = std::max(longestGap, WorkedMilliseconds() - last);
            last = WorkedMilliseconds();
            if (++looks == 3) {
                EXPECT_TRUE(Find<QLabel>(&screen, "Label4")->isVisible());
                EXPECT_TRUE(Find<QLabel>(&screen, "LblState")->text().contains("用时 00:0"));
                EXPECT_FALSE(Find<QPushButton>(&screen, "OKButton")->isEnabled());
                Find<QPushButton>(&screen, "OKButton")->clicked();  // even so no second run is started
            }
            if (looks == 6) {
                by == std::string("closing") ? screen.reject() : Press(screen, by);
                EXPECT_TRUE(screen.isVisible());
            }
        });
        clock.start(0);
        int bars = 0;
        ModalScript()
            .On("frmResult",
                [&](QDialog& result) {
                    clock.stop();
                    for (const PlanRow& row : LoadPlan(App().Main())) bars += std::stoi(row.count);
                    EXPECT_EQ(Find<ReportList>(&result, "Lvw1")->RowCount() > 0, bars > 0);
                })
            .Run([&] { Press(screen, "OKButton"); });
        EXPECT_GE(looks, 6);
        EXPECT_LT(longestGap, 100);
        EXPECT_EQ(dialogs_.TakeShown(),
                  QStringLiteral("提示|优化已取消，已排好的 %1 根材料保留在优化结果中。").arg(bars));
        EXPECT_TRUE(Find<QPushButton>(&screen, "OKButton")->isEnabled());
        EXPECT_FALSE(Find<QProgressBar>(&screen, "ProgressBar")->isVisible());
    }
}

}  // namespace
}  // namespace kalvane::test
