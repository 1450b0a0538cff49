// Goods in, goods out and the query, through the screens.

#include "platform/files.h"
#include "support/screens/warehouse_test.h"

namespace kalvane::test {
namespace {

class WarehouseFlow : public WarehouseScreensTest {
  protected:
    QStringList Said(std::initializer_list<const char*> texts) const {
        QStringList said;
        for (const char* text : texts) said << QStringLiteral("提示|") + QString::fromUtf8(text);
        return said;
    }

    /// What the operator types into frmEnterData.
    static ModalScript::Work EnterLine(const char* code, const char* price, const char* count) {
        return [=](QDialog& line) {
            SetText(line, "TxtMC", "上滑");
            SetText(line, "TxtGG", code);
            SetText(line, "TxtDW", "支");
            QTest::keyClicks(Find<QLineEdit>(&line, "TxtDJ"), QLatin1String(price));
            QTest::keyClicks(Find<QLineEdit>(&line, "TxtSL"), QLatin1String(count));
            Find<QComboBox>(&line, "CmbZL")->setCurrentIndex(0);
            Press(line, "OKButton");
        };
    }

    void EnterNote(const char* code, const char* price, const char* count) {
        ModalScript()
            .On("FrmEnter",
                [](QDialog& note) {
                    for (const char* box : {"TxtLLLY", "TxtYT", "TxtSM", "TxtCGY"}) SetText(note, box, "甲");
                    Press(note, "CmdAdd");
                    Press(note, "OKButton");
                })
            .On("frmEnterData", EnterLine(code, price, count))
            .Run([&] { Open("mnuInput"); });
    }
};

TEST_F(WarehouseFlow, GoodsInIsCheckedBoxByBoxAndConfirmed) {
    ModalScript()
        .On("FrmEnter",
            [&](QDialog& note) {
                EXPECT_EQ(TextIn(note, "TxtDJBH"), QStringLiteral("1"));
                const char* const boxes[] = {"TxtLLLY", "TxtYT", "TxtSM", "TxtCGY"};
                for (const char* box : boxes) {
                    Press(note, "OKButton");
                    EXPECT_EQ(note.focusWidget()->objectName(), QLatin1String(box));
                    SetText(note, box, "甲");
                }
                Press(note, "OKButton");
                EXPECT_EQ(note.focusWidget()->objectName(), QStringLiteral("CmdAdd"));
                EXPECT_EQ(std::exchange(dialogs_.shown, {}).count(Said({"数据不完整!请重新输入。"})[0]), 5);
                Press(note, "CmdDel");
                EXPECT_EQ(std::exchange(dialogs_.shown, {}), Said({"无选取您要删除的记录!"}));

                Press(note, "CmdAdd");
                Press(note, "CmdAdd");
                EXPECT_EQ(Table(note, "LVW"), "上滑|A|支|2.5|10|型材\n上滑|B|支|12|3|型材");
                note.activateWindow();
                ASSERT_TRUE(QTest::qWaitForWindowActive(&note));
                Find<ReportList>(&note, "LVW")->setFocus();
                QTest::keyClick(Find<ReportList>(&note, "LVW"), Qt::Key_F2);
                EXPECT_EQ(Table(note, "LVW"), "上滑|A|支|2.5|10|型材\n上滑|C|支|1.5|2|型材");
                SetText(note, "TxtCGJE", "5");
                EXPECT_EQ(Stock("Select * from 入库单"), "") << "nothing is stored before";
                SetText(note, "TxtCGY", "名字比十个字符还要长的人");
                Press(note, "OKButton");  // the store refuses it
                EXPECT_EQ(note.focusWidget()->objectName(), QStringLiteral("TxtCGY"));
                EXPECT_EQ(std::exchange(dialogs_.shown, {}).size(), 1);
                EXPECT_EQ(Find<ReportList>(&note, "LVW")->RowCount(), 2) << "typed lines stay";
                SetText(note, "TxtCGY", "乙");
                App().Stock().Execute("Insert into 入库单 (单据编号) values(4)");
                App().Stock().Execute("Insert into 入库单 (单据编号) values(1)");
                dialogs_.answers = {true};
                Press(note, "OKButton");
            })
        .On("frmEnterData",
            [&](QDialog& line) {
                Press(line, "OKButton");
                EXPECT_EQ(std::exchange(dialogs_.shown, {}), Said({"数据不完整!请重新输入。"}));
                EXPECT_EQ(line.focusWidget()->objectName(), QStringLiteral("TxtMC"));
                EnterLine("A", "2..5", "1x0")(line);  // the filter lets no letter in
                EXPECT_EQ(line.focusWidget()->objectName(), QStringLiteral("TxtDJ"));
                EXPECT_EQ(std::exchange(dialogs_.shown, {}).size(), 1);
                SetText(line, "TxtDJ", "2.5");
                Press(line, "OKButton");
            })
        .On("frmEnterData", EnterLine("B", "12", "3"))
        .On("frmEnterData",
            [](QDialog& line) {
                EXPECT_EQ(TextIn(line, "TxtGG"), QStringLiteral("B"));
                for (const char* box : {"TxtDJ", "TxtSL"}) SetText(line, box, "");
                EnterLine("C", "1.5", "2")(line);
            })
        .Run([&] { Open("mnuInput"); });
    EXPECT_EQ(std::exchange(dialogs_.shown, {}),
              Said({"编号 1 已被另一张单据使用。用编号 5 保存这张单据吗？"}));
    // 2.5*10 + 1.5*2 = 28
    EXPECT_EQ(Stock("Select 采购金额,采购员 from 入库单 where 单据编号=5"), "28|乙");
    EXPECT_EQ(Stock("Select 采购日期 from 入库单 where 单据编号=5"),
              QDate::currentDate().toString(Qt::ISODate).toStdString());
    EXPECT_EQ(Stock("Select 规格,入库量,库存量 from 库存表"), "A|10|10\nC|2|2");
}

TEST_F(WarehouseFlow, GoodsOutIsPickedFromTheStock) {
    EnterNote("A", "1", "10");
    ModalScript()
        .On("FrmPost",
            [&](QDialog& note) {
                for (const char* box : {"TxtYT", "TxtSM", "TxtCGY"}) SetText(note, box, "甲");
                Press(note, "CmdDel");
                Press(note, "CmdAdd");
                EXPECT_EQ(Table(note, "LVW"), "上滑|A|支|10|型材\n上滑|A|支|1|型材");
                std::exchange(dialogs_.shown, {});
                dialogs_.answers = {false, true};
                for (int i = 0; i < 2; ++i) {
                    EXPECT_TRUE(note.isVisible());
                    Press(note, "OKButton");
                }
            })
        .On("FrmPostData",
            [&](QDialog& pick) {
                auto* stock = Find<ReportList>(&pick, "LvwR");
                const auto doubleClick = [stock](QPoint place) {
                    QTest::mouseDClick(stock->viewport(), Qt::LeftButton, {}, place);
                };
                doubleClick({5, 5});
                Press(pick, "OKButton");
                Find<QComboBox>(&pick, "CmbZL")->setCurrentIndex(0);
                EXPECT_EQ(Table(pick, "LvwR"), "上滑|A|支|10|型材");
                EXPECT_EQ(std::exchange(dialogs_.shown, {}),
                          Said({"无选取所要删除的记录!", "无选中记录!", "数据不完整!请重新输入。"}));
                stock->SelectRow(0);
                for (const char* count : {"", "0", "11", "10", "1"}) {
                    doubleClick(stock->visualItemRect(stock->topLevelItem(0)).center());
                    SetText(pick, "TxtSL", count);
                    Press(pick, "OKButton");
                }
                EXPECT_EQ(std::exchange(dialogs_.shown, {}),
                          Said({"数据不能为0!请重新输入。", "数据不能为0!请重新输入。",
                                "数据不能大于10,请重新输入!"}));
                Press(pick, "CancelButton");
            })
        .Run([&] { Open("mnuOutput"); });
    EXPECT_EQ(std::exchange(dialogs_.shown, {}).back(),
              Said({"下面的材料出库后库存量将小于零：\n规格“A”：出库 11，库存 10\n仍要出库吗？"})[0]);
    EXPECT_EQ(Stock("Select 规格,入库量,库存量 from 库存表"), "A|10|-1");
    EXPECT_EQ(Stock("Select 单据编号,说明 from 出库单"), "1|甲");
}

TEST_F(WarehouseFlow, TheQueryFiltersPreviewsPrintsAndExports) {
    EnterNote("A", "1.5", "10");
    EnterNote("B", "2", "10");
    App().Stock().Execute("Update 入库单 set 采购日期='2002-03-04' where 单据编号=2");
    App().Stock().Execute("Update 库存表 set 库存量=-3 where 规格='B'");
    const QString pdf = InFolder("note.pdf");
    ModalScript()
        .On("FrmQuery",
            [&](QDialog& query) {
                auto* fields = Find<QComboBox>(&query, "CmbZD");
                auto* list = Find<ReportList>(&query, "LVW");
                const auto filter = [&](int field, const char* value) {
                    fields->setCurrentIndex(field);
                    Q_EMIT fields->activated(field);
                    EXPECT_EQ(TextIn(query, "TxtZDZ"), QString());
                    QTest::keyClicks(query.focusWidget(), QLatin1String(value));
                    QTest::keyClick(query.focusWidget(), Qt::Key_Return);
                };
                Press(query, "CmdQuery");
                filter(6, "");
                filter(6, "x");
                filter(0, "x");
                EXPECT_EQ(Find<QLineEdit>(&query, "TxtZDZ")->selectedText(), QStringLiteral("x"));
                EXPECT_EQ(std::exchange(dialogs_.shown, {}),
                          Said({"字段名不能为空!", "字段值不能为空!",
                                "数据是日期类型(2002-03-04),请正确输入!", "数据是数值类型,请正确输入!"}));
                EXPECT_EQ(list->columnCount(), 0) << "no query has run yet";
                filter(6, "2002-03-04");
                EXPECT_EQ(Table(query, "LVW"), "2|甲|20|甲|甲|甲|2002-03-04");
                filter(3, "'");
                EXPECT_EQ(list->RowCount(), 1) << "a refused statement leaves the list";
                EXPECT_EQ(std::exchange(dialogs_.shown, {}).size(), 1);
                Press(query, "CmdAll");
                EXPECT_EQ(list->RowCount(), 2);
                EXPECT_EQ(TextIn(query, "TxtZDZ"), QStringLiteral("'"));

                list->clearSelection();
                QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                                   list->viewport()->rect().bottomRight());
                EXPECT_EQ(std::exchange(dialogs_.shown, {}), Said({"无选取对象,不能预览更多的信息!"}));
                list->SelectRow(0);
                QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                                   list->visualItemRect(list->topLevelItem(0)).center());

                Find<QTabBar>(&query, "TabStrip1")->setCurrentIndex(2);
                EXPECT_EQ(list->columnCount() + list->RowCount() + fields->currentIndex(), -1);
                Press(query, "CmdAll");
                EXPECT_EQ(list->topLevelItem(1)->foreground(0).color(), QColor(Qt::red));
                EXPECT_NE(list->topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
                dialogs_.files = {InFolder("stock.txt")};
                Press(query, "CmdText");
                EXPECT_NE(ReadFile(folder_ / "stock.txt").find("上滑\tA\t甲\t支\t型材\t10\t10\t\r\n"),
                          std::string::npos);
                Press(query, "CmdKCPrint");
            })
        .On("FrmEnter",
            [&](QDialog& note) {
                EXPECT_EQ(note.windowTitle(), QStringLiteral("入库单预览"));
                EXPECT_EQ(TextIn(note, "TxtCGJE"), QStringLiteral("15"));
                EXPECT_EQ(Table(note, "LVW"), "上滑|A|支|1.5|10|型材");
                for (const char* command : {"CmdAdd", "CmdEdit", "CmdDel", "OKButton"}) {
                    EXPECT_FALSE(Find<QPushButton>(&note, command)->isEnabled()) << command;
                }
                EXPECT_TRUE(Find<QLineEdit>(&note, "TxtYT")->isReadOnly());
                dialogs_.files = {pdf};
                Press(note, "CmdPrint");
                note.reject();
                EXPECT_FALSE(note.isVisible()) << "a preview asks nothing";
            })
        .On("frmPreview", [](QDialog& preview) { Press(preview, "CmdPdf"); })
        .On("frmPreview", [](QDialog&) {})
        .Run([&] { Open("mnuQuery"); });
    EXPECT_TRUE(ReadFile(pdf.toStdString()).starts_with("%PDF"));
}

}  // namespace
}  // namespace kalvane::test
