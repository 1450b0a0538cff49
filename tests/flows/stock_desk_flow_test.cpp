// What helps a storekeeper beside the notes: typed work that comes back, completion, movements, minimums,
// goods out for a project, and paper.

#include "platform/files.h"
#include "support/screens/warehouse_test.h"
#include "support/xlsx_reader.h"
#include "warehouse/goods_notes.h"
#include "warehouse/minimum_stock.h"
#include "warehouse/screens/FrmEnter.h"
#include "warehouse/screens/FrmQuery.h"

namespace kalvane::test {
namespace {

class StockDeskFlow : public WarehouseScreensTest {
  protected:
    static NoteLine Line(const char* name, const char* code, const char* count) {
        return {name, code, "支", "2", count, "型材"};
    }
    static void Confirm(NoteKind kind, const char* number, const char* date, std::vector<NoteLine> lines) {
        ConfirmNote(App().Stock(), kind, {number, "甲厂", "", "生产", "P-7", "王", date, std::move(lines)});
    }

    static void FillHead(QDialog& note) {
        for (const char* box : {"TxtLLLY", "TxtYT", "TxtSM", "TxtCGY"}) {
            SetText(note, box, box);
        }
    }
    static ModalScript::Work EnterLine(const char* code, const char* count) {
        return [=](QDialog& line) {
            SetText(line, "TxtMC", "上滑");
            SetText(line, "TxtGG", code);
            SetText(line, "TxtDW", "支");
            SetText(line, "TxtDJ", "2");
            SetText(line, "TxtSL", count);
            Find<QComboBox>(&line, "CmbZL")->setCurrentIndex(0);
            Press(line, "OKButton");
        };
    }
};

TEST_F(StockDeskFlow, ATypedNoteComesBackUntilItIsConfirmed) {
    {
        // A screen that goes without a word, as in a program that is killed.
        FrmEnter note("1", frame_.get());
        note.show();
        FillHead(note);
        ModalScript()
            .On("frmEnterData", EnterLine("A", "10"))
            .On("frmEnterData", EnterLine("B", "3"))
            .Run([&] {
                Press(note, "CmdAdd");
                Press(note, "CmdAdd");
            });
    }
    App().Stock().Execute("Insert into 入库单 (单据编号) values(1)");  // meanwhile
    ModalScript()
        .On("FrmEnter",
            [&](QDialog& note) {
                ASSERT_TRUE(Find<QPushButton>(&note, "CmdRecover")->isVisible());
                EXPECT_EQ(Table(note, "LVW"), "") << "nothing comes back unasked";
                Press(note, "CmdRecover");
                EXPECT_FALSE(Find<QPushButton>(&note, "CmdRecover")->isVisible());
                EXPECT_EQ(Table(note, "LVW"), "上滑|A|支|2|10|型材\n上滑|B|支|2|3|型材");
                EXPECT_EQ(TextIn(note, "TxtSM") + TextIn(note, "TxtDJBH"), QStringLiteral("TxtSM2"));
                SetText(note, "TxtCGY", "名字比十个字符还要长的人");
                Press(note, "OKButton");
                EXPECT_EQ(std::exchange(dialogs_.shown, {}).size(), 1) << "the store refuses it";
            })
        .Run([&] { Open("mnuInput"); });
    ModalScript()
        .On("FrmEnter",
            [&](QDialog& note) {
                Press(note, "CmdRecover");
                EXPECT_EQ(TextIn(note, "TxtCGY"), QStringLiteral("名字比十个字符还要长的人"));
                SetText(note, "TxtCGY", "乙");
                Press(note, "OKButton");
            })
        .Run([&] { Open("mnuInput"); });
    EXPECT_EQ(Stock("Select 规格,库存量 from 库存表"), "A|10\nB|3");
    ModalScript()
        .On("FrmEnter",
            [](QDialog& note) { EXPECT_FALSE(Find<QPushButton>(&note, "CmdRecover")->isVisible()); })
        .Run([&] { Open("mnuInput"); });
}

TEST_F(StockDeskFlow, ANoteThatWasStoredBeforeTheKillIsNotTakenTwice) {
    {
        FrmEnter note("1", frame_.get());
        note.show();
        FillHead(note);
        ModalScript().On("frmEnterData", EnterLine("A", "10")).Run([&] { Press(note, "CmdAdd"); });
    }
    ConfirmNote(App().Stock(), NoteKind::In,
                {"1",
                 "TxtLLLY",
                 "",
                 "TxtYT",
                 "TxtSM",
                 "TxtCGY",
                 QDate::currentDate().toString(Qt::ISODate).toStdString(),
                 {Line("上滑", "A", "10")}});
    ModalScript()
        .On("FrmEnter",
            [&](QDialog& note) {
                Press(note, "CmdRecover");
                EXPECT_EQ(Table(note, "LVW"), "");
            })
        .Run([&] { Open("mnuInput"); });
    EXPECT_EQ(dialogs_.TakeShown(), QStringLiteral("提示|这张单据的前 1 行已经保存，单据编号是 1。"));
    ModalScript()
        .On("FrmEnter",
            [](QDialog& note) { EXPECT_FALSE(Find<QPushButton>(&note, "CmdRecover")->isVisible()); })
        .Run([&] { Open("mnuInput"); });
}

TEST_F(StockDeskFlow, TabTakesTheOnlyProposalAndEnterWhatWasTyped) {
    Confirm(NoteKind::In, "1", "2002-03-04",
            {Line("中滑", "S2-45", "10"), Line("边封", "S3-1", "4"), Line("勾企", "S3-2", "4")});
    const auto type = [](QDialog& line, const char* text, Qt::Key key) {
        line.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&line));
        auto* box = Find<QLineEdit>(&line, "TxtGG");
        box->setFocus();
        QTest::keyClicks(box, QLatin1String(text));
        QWidget* popup = box->completer()->popup();
        ASSERT_TRUE(popup->isVisible());
        QTest::keyClick(popup, key);
        EXPECT_FALSE(popup->isVisible());
    };
    const auto boxes = [](QDialog& line) {
        QStringList texts;
        for (const char* box : {"TxtMC", "TxtGG", "TxtDW", "TxtDJ"}) texts << TextIn(line, box);
        return texts.join(QLatin1Char('|')).toStdString();
    };
    FrmEnter note("2", frame_.get());
    note.show();
    ModalScript()
        .On("frmEnterData",
            [&](QDialog& line) {
                type(line, "S2", Qt::Key_Tab);
                EXPECT_EQ(boxes(line), "中滑|S2-45|支|2");
                EXPECT_EQ(line.focusWidget()->objectName(), QStringLiteral("TxtDW"));
            })
        .On("frmEnterData",
            [&](QDialog& line) {
                type(line, "S3", Qt::Key_Tab);  // two of them
                EXPECT_EQ(boxes(line), "|S3||");
            })
        .On("frmEnterData",
            [&](QDialog& line) {
                type(line, "S2", Qt::Key_Return);
                EXPECT_EQ(boxes(line), "|S2||");
            })
        .Run([&] {
            for (int i = 0; i < 3; ++i) Press(note, "CmdAdd");
        });
}

TEST_F(StockDeskFlow, FromTheStockToItsMovementsTheirNotesAndMinimums) {
    Confirm(NoteKind::In, "1", "2002-03-04", {Line("上滑", "A", "10"), Line("下滑", "B", "4")});
    Confirm(NoteKind::Out, "1", "2002-03-05", {Line("上滑", "A", "3")});
    ModalScript()
        .On("FrmQuery",
            [&](QDialog& query) {
                EXPECT_FALSE(Find<QPushButton>(&query, "CmdLS")->isEnabled());
                Find<QTabBar>(&query, "TabStrip1")->setCurrentIndex(2);
                Press(query, "CmdLS");
                EXPECT_EQ(dialogs_.TakeShown(), QStringLiteral("提示|请先选择库存表中的材料。"));
                Press(query, "CmdAll");
                Find<ReportList>(&query, "LVW")->SelectRow(0);
                Press(query, "CmdLS");
                Press(query, "CmdZDKC");
                dialogs_.files = {InFolder("kinds.pdf")};
                Press(query, "CmdFLPrint");
            })
        .On("frmStockFlow",
            [](QDialog& flow) {
                EXPECT_EQ(Table(flow, "Lvw"),
                          "2002-03-04|入库单|1|生产|10||10\n2002-03-05|出库单|1|生产||3|7");
                Find<ReportList>(&flow, "Lvw")->SelectRow(1);
                Press(flow, "CmdNote");
            })
        .On("FrmPost",
            [](QDialog& note) {
                EXPECT_EQ(note.windowTitle(), QStringLiteral("出库单预览"));
                EXPECT_FALSE(Find<QPushButton>(&note, "CmdGCLL")->isEnabled());
                EXPECT_FALSE(Find<QPushButton>(&note, "CmdRecover")->isVisible());
            })
        .On("frmMinStock",
            [](QDialog& minimum) {
                auto* list = Find<ReportList>(&minimum, "Lvw");
                list->SelectRow(0);
                SetText(minimum, "TxtZD", "9");
                Press(minimum, "CmdSet");
                EXPECT_EQ(Table(minimum, "Lvw"), "上滑|A|支|型材|7|9|2\n下滑|B|支|型材|4||");
                EXPECT_EQ(list->SelectedRow(), 0);
                Find<QCheckBox>(&minimum, "ChkLow")->setChecked(true);
                EXPECT_EQ(list->RowCount(), 1);
                EXPECT_EQ(list->topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
            })
        .On("frmPreview", [](QDialog& preview) { Press(preview, "CmdPdf"); })
        .Run([&] { Open("mnuQuery"); });
    EXPECT_EQ(BelowMinimum(App().Stock(), App().Own()).size(), 1U);
    EXPECT_TRUE(ReadFile(folder_ / "kinds.pdf").starts_with("%PDF"));
}

TEST_F(StockDeskFlow, GoodsOutForAProjectTakesWhatIsThere) {
    App().currentProjectId = "9001";
    for (const char* row : {"工程 (编号,工程名称) values(9001,'样板')",
                            "工程门窗 (工程编号,门窗编号,编号,门窗名称,樘数) values(9001,9001,9001,'C1',4)",
                            "标注 (MCNUM,MC,schar) Values(9001,'B','1500')",
                            "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(9001,1,'框','K9001','2','B')",
                            "型材 (型材型号,型材长度) values('K9001',6000)",
                            "窗配件 (窗号,编号,名称,规格,数量,单位) values(9001,1,'滑轮','L9001','4','个')",
                            "窗配件 (窗号,编号,名称,规格,数量,单位) values(9001,2,'锁','S9001','1','把')"}) {
        App().Main().Execute(std::string("Insert into ") + row);
    }
    // 8 pieces of 1.5 m are two bars of 6 m; 16 pulleys, 4 locks.
    Confirm(NoteKind::In, "1", "2002-03-04", {Line("框料", "K9001", "5"), Line("滑轮", "L9001", "10")});
    ModalScript()
        .On("FrmPost",
            [&](QDialog& note) {
                for (const char* box : {"TxtYT", "TxtSM", "TxtCGY"}) SetText(note, box, "甲");
                Press(note, "CmdGCLL");
                EXPECT_EQ(Table(note, "LVW"), "框料|K9001|支|2|型材\n滑轮|L9001|支|10|型材");
                EXPECT_EQ(Stock("Select * from 出库单子表"), "") << "nothing before it is confirmed";
                Press(note, "CmdGCLL");  // what the note has already is no longer there
                Press(note, "OKButton");
            })
        .On("frmGCLL",
            [](QDialog& offer) {
                QCoreApplication::processEvents();
                EXPECT_EQ(Find<QComboBox>(&offer, "cboGC")->currentText(), QStringLiteral("样板"));
                EXPECT_EQ(Table(offer, "Lvw"),
                          "框料|K9001|支|型材|2|12米÷6米|5|2||0\n滑轮|L9001|支|型材|16|件数|10|10|6|1\n"
                          "锁|S9001|把|五金件|4|件数|0|0|4|2");
                EXPECT_EQ(Find<QLabel>(&offer, "LblLacking")->text(),
                          QStringLiteral("库存不足：L9001 缺 6支；S9001 缺 4把"));
                Press(offer, "OKButton");
            })
        .On("frmGCLL",
            [&](QDialog& offer) {
                QCoreApplication::processEvents();
                EXPECT_EQ(Find<ReportList>(&offer, "Lvw")->Text(0, 6), QStringLiteral("3"));
                Find<ReportList>(&offer, "Lvw")->SelectRow(2);
                Press(offer, "OKButton");
                EXPECT_EQ(dialogs_.TakeShown(), QStringLiteral("提示|没有选中有库存的材料。"));
                Press(offer, "CancelButton");
            })
        .Run([&] { Open("mnuOutput"); });
    EXPECT_EQ(Stock("Select 规格,库存量 from 库存表"), "K9001|3\nL9001|0");
}

TEST_F(StockDeskFlow, NotesArePrintedOnEitherPaperAndListsExported) {
    Confirm(NoteKind::In, "1", "2002-03-04", {Line("上滑", "A", "10")});
    dialogs_.files = {InFolder("a5.pdf"), InFolder("in.xlsx"), InFolder("in.txt")};
    ModalScript()
        .On("FrmQuery",
            [&](QDialog& query) {
                Press(query, "CmdAll");
                Find<ReportList>(&query, "LVW")->SelectRow(0);
                Find<ReportList>(&query, "LVW")->setFocus();
                QTest::keyClick(Find<ReportList>(&query, "LVW"), Qt::Key_Return);
                Press(query, "CmdWorkbook");
                Press(query, "CmdText");
            })
        .On("FrmEnter",
            [](QDialog& note) {
                Find<QComboBox>(&note, "CmbPaper")->setCurrentIndex(1);
                Press(note, "CmdPrint");
            })
        .On("frmPreview", [](QDialog& preview) { Press(preview, "CmdPdf"); })
        .Run([&] { Open("mnuQuery"); });
    // 210 mm and 148 mm in points of 1/72 inch, as PDF has them.
    EXPECT_NE(ReadFile(folder_ / "a5.pdf").find("/MediaBox [0 0 595.000000 420.000000]"), std::string::npos);
    const std::string cells = XlsxReader(folder_ / "in.xlsx").Sheet(1).cells;
    EXPECT_TRUE(cells.starts_with("A1=入库单")) << cells;
    EXPECT_NE(cells.find("A3=#1|B3=甲厂|C3=#20|D3=生产|"), std::string::npos) << cells;
    EXPECT_NE(ReadFile(folder_ / "in.txt").find("1\t甲厂\t20\t生产\tP-7\t王\t2002-03-04\t\r\n"),
              std::string::npos);
}

TEST_F(StockDeskFlow, ManyRowsComeUpOneAfterTheOther) {
    const int count = 1200;
    for (int i = 1; i <= count; ++i) {
        App().Stock().Execute("Insert into 出库单 (单据编号,用途) values(" + std::to_string(i) + ",'甲')");
    }
    FrmQuery query(frame_.get());
    query.show();
    Find<QTabBar>(&query, "TabStrip1")->setCurrentIndex(1);
    auto* list = Find<ReportList>(&query, "LVW");
    Press(query, "CmdAll");
    EXPECT_LT(list->RowCount(), count);
    EXPECT_GT(list->RowCount(), 0);
    QTRY_COMPARE(list->RowCount(), count);
    EXPECT_EQ(list->Text(count - 1, 0), QString::number(count));
    EXPECT_TRUE(list->header()->sectionsClickable());
    dialogs_.files = {InFolder("all.txt")};
    Press(query, "CmdAll");
    Press(query, "CmdText");  // while rows are still to come
    EXPECT_NE(ReadFile(folder_ / "all.txt").find("\n1200\t甲\t"), std::string::npos);
    EXPECT_EQ(list->RowCount(), count);
}

}  // namespace
}  // namespace kalvane::test
