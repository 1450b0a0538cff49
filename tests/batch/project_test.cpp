// The windows and the contract of a project as a script gets them.

#include "platform/files.h"
#include "support/batch.h"

namespace kalvane::test {
namespace {

TEST(BatchProjectTest, WindowsAndContractOfTheSample) {
    const TempFolder folder;
    const std::string of = " --folder '" + folder.Path().string() + "' --project ";
    const BatchResult windows = RunBatch("windows" + of + "示例工程");
    EXPECT_TRUE(windows.output.starts_with("C1\t楼梯间\t900\t1200\t6\t无\t1\t1\t1\nC2\t走廊\t"))
        << windows.errors;
    EXPECT_TRUE(windows.output.ends_with("\nZH3带边窗门\t门厅\t2400\t2200\t2\t无\t1\t-26\t33\n"));
    EXPECT_EQ(RunBatch("windows" + of + "无").exitCode, 1);

    // The bay window is there four times, with two of its side windows, whose frame has two pieces of 600
    // + 6.
    const BatchResult bill = RunBatch("expand" + of + "示例工程");
    EXPECT_NE(bill.output.find("ZH2飘窗\tprofile\t框B\tPK60-01\t606\t\t16\t\n"), std::string::npos);

    const std::filesystem::path pdf = folder / "contract.pdf";
    EXPECT_EQ(RunBatch("contract" + of + "示例工程 --pdf '" + pdf.string() + "'").exitCode, 0);
    EXPECT_TRUE(ReadFile(pdf).starts_with("%PDF"));
    const BatchResult unwritable = RunBatch("contract" + of + "示例工程 --pdf '/没有/a.pdf'");
    EXPECT_EQ(unwritable.exitCode, 1);
    EXPECT_NE(unwritable.errors, "");
}

}  // namespace
}  // namespace kalvane::test
