// A script trusts the exit code: 0 only when nothing of what was asked for is missing.

#include "platform/files.h"
#include "support/batch.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class ExitCodeTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"工程 (编号,工程名称) values(1,'甲')", "门窗 (编号,名称,图号) values(7,'推拉窗',1)",
                "工程门窗 (工程编号,门窗编号,编号,门窗名称,樘数) values(1,7,21,'C1',2)",
                "标注 (schar,Mcnum,MC) values('1500',21,'B')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(7,1,'框','P1','2','B')"});
        store_.reset();
    }
    BatchResult Run(const std::string& command, const std::string& preparation = "true") {
        return RunBatch(command + " --folder '" + folder_.Path().string() + "'", preparation);
    }
    void Change(const std::string& sql) { Connection(file_, StoreKind::Main).Execute(sql); }
};

TEST_F(ExitCodeTest, SaysWhetherAnythingIsMissing) {
    WriteFileAtomically(folder_ / "fits.DDD", "1500\r\n2\r\n");
    WriteFileAtomically(folder_ / "long.DDD", "7000\r\n2\r\n1500\r\n2\r\n");
    const std::string cut = "cut --clc 6000 --nodes 5 --demand '" + folder_.Path().string();
    const BatchResult whole = Run("expand --project 甲");
    EXPECT_EQ(whole.exitCode, 0) << whole.errors;
    EXPECT_NE(whole.output.find("1500"), std::string::npos) << whole.output;
    EXPECT_EQ(Run(cut + "/fits.DDD'").exitCode, 0);
    const BatchResult tooLong = Run(cut + "/long.DDD'");
    EXPECT_EQ(tooLong.exitCode, 1);
    EXPECT_NE(tooLong.errors, "");
    EXPECT_EQ(Run("plan --clc 0 --project 甲").exitCode, 1);
    EXPECT_EQ(Run("plan --clc 6000 --nodes 5 --project 乙").exitCode, 1);
    // Every file ends at 4 KiB, as on a full disk: the plan cannot be stored.
    EXPECT_EQ(Run("plan --clc 6000 --nodes 5 --project 甲", "trap '' XFSZ; ulimit -f 8").exitCode, 1);

    Change("Update 窗型材 set 计算公式='B)'");  // a formula that would never come to an end
    const BatchResult endless = Run("expand --project 甲");
    EXPECT_EQ(endless.exitCode, 1);
    EXPECT_NE(endless.errors, "");
}

TEST_F(ExitCodeTest, ADamagedStoreIsNoShortList) {
    for (int i = 2; i < 900; ++i) {
        const std::string number = std::to_string(i);
        Change("Insert into 窗型材 (窗号,编号,名称,规格,数量,计算公式) values(7," + number + ",'框','P" +
               number + "','2','B')");
    }
    std::string bytes = ReadFile(file_);
    bytes.replace(bytes.size() - 3 * 4096, 2 * 4096, std::string(2 * 4096, 'x'));
    WriteFileAtomically(file_, bytes);
    const BatchResult result = Run("expand --project 甲");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("已损坏"), std::string::npos) << result.errors;
}

}  // namespace
}  // namespace kalvane::test
