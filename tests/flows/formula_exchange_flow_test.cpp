// Window types through a workbook, by the two commands of their screen.

#include "design/formula_export.h"
#include "design/screens/formula_exchange.h"
#include "support/screens/screen_kit.h"
#include "ui/screen.h"

namespace kalvane::test {
namespace {

class FormulaExchangeFlow : public ScreenTest {
  protected:
    static std::string Count(const char* table) {
        return std::to_string(App().Main().OpenCursor(std::string("Select * from ") + table).RecordCount());
    }
    static std::string Counts() {
        return Count("门窗") + " " + Count("窗型材") + " " + Count("窗型钢") + " " + Count("窗板材") + " " +
               Count("窗配件");
    }

    Screen screen_{QStringLiteral("FrmDesign"), QStringLiteral("x"), nullptr};
};

TEST_F(FormulaExchangeFlow, EveryTypeGoesOutAndComesBackOnceMore) {
    dialogs_.files = {InFolder("公式.xlsx")};
    ExportFormulasFrom(&screen_);
    EXPECT_EQ(screen_.windowTitle(), "门窗设计");
    EXPECT_TRUE(dialogs_.TakeShown().endsWith(QDir::toNativeSeparators(InFolder("公式.xlsx"))));
    const std::vector<GridLine> before = FormulaGrid(App().Main());
    const std::string types = Count("门窗");

    for (const char* tag : {"", "11", "31"}) EXPECT_FALSE(ImportFormulasTo(&screen_, tag));
    EXPECT_EQ(dialogs_.shown.count(QStringLiteral("提示|当前状态下不能导入公式！必须在系列状态")), 3);
    EXPECT_FALSE(((dialogs_.files = {QString()}), ImportFormulasTo(&screen_, "21"))) << "cancelled silently";
    EXPECT_EQ(dialogs_.filters.back().left(16), "Excel公式表|*.xls");
    dialogs_.TakeShown();

    const auto importing = [&](bool goesOn) {
        dialogs_.files = {InFolder("公式.xlsx")};
        bool isChanged = !goesOn;
        ModalScript()
            .On("frmImportPreview",
                [&](QDialog& preview) {
                    EXPECT_TRUE(Find<QPlainTextEdit>(&preview, "Text1")
                                    ->toPlainText()
                                    .startsWith(QString::fromStdString("窗型 " + types + " 个")));
                    EXPECT_EQ(screen_.windowTitle(), "Excel公式导入正在进行中......");
                    Press(preview, goesOn ? "OKButton" : "CancelButton");
                })
            .Run([&] { isChanged = ImportFormulasTo(&screen_, "21"); });
        EXPECT_EQ(isChanged, goesOn);
        EXPECT_EQ(screen_.windowTitle(), "设计门窗");
    };
    const std::string counts = Counts();
    importing(false);
    EXPECT_EQ(Counts(), counts);
    importing(true);
    std::vector<GridLine> twice = before;
    twice.insert(twice.end(), before.begin(), before.end());
    EXPECT_EQ(FormulaGrid(App().Main()), twice);
    EXPECT_EQ(dialogs_.TakeShown(), "");
}

TEST_F(FormulaExchangeFlow, ARefusedRowIsReportedAndWhatCameBeforeStays) {
    SaveFormulaGrid({{"门窗名称：甲", "1", "", ""}, {"板材名称", "", "", ""}, {"玻璃", "两", "B", "H"}},
                    folder_ / "a.xlsx");
    const std::string before = Count("门窗");
    dialogs_.files = {InFolder("a.xlsx")};
    ModalScript()
        .On("frmImportPreview",
            [&](QDialog& preview) {
                EXPECT_TRUE(
                    Find<QPlainTextEdit>(&preview, "Text1")->toPlainText().contains("第 3 行不能导入"));
                Press(preview, "OKButton");
            })
        .Run([&] { EXPECT_TRUE(ImportFormulasTo(&screen_, "21")); });
    EXPECT_TRUE(dialogs_.TakeShown().startsWith("提示|第 3 行不能导入"));
    EXPECT_EQ(Count("门窗"), std::to_string(std::stoi(before) + 1));
}

}  // namespace
}  // namespace kalvane::test
