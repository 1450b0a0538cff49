#include "optimise/plan.h"
#include "optimise/screens/frmResult.h"
#include "platform/files.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {

using PlanPrint = ScreenTest;

TEST_F(PlanPrint, APlanOfManyRowsGoesToPdf) {
    App().optimiseProjectName = "阳光花园";
    for (int i = 0; i < 300; ++i) {
        InsertPlanRow(App().Main(), {"料" + std::to_string(i), "1500*2+1200", "3", "0.98", "90"});
    }
    dialogs_.files = {InFolder("切割.pdf"), InFolder("统计.pdf")};
    frmResult result(nullptr);
    result.show();
    const auto save = [](QDialog& preview) { Press(preview, "CmdPdf"); };
    ModalScript().On("frmPreview", save).Run([&] { Press(result, "cmdPrint"); });
    ModalScript().On("frmPreview", save).Run([&] { Press(result, "cmdPrint1"); });
    for (const char* file : {"切割.pdf", "统计.pdf"}) EXPECT_GT(ReadFile(folder_ / file).size(), 10000U);
    EXPECT_EQ(dialogs_.TakeShown(), QStringList());
}

}  // namespace kalvane::test
