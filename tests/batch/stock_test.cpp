// Goods in, goods out, the query and the clearing as a script runs them.

#include "support/batch.h"

namespace kalvane::test {
namespace {

constexpr const char* kHeadIn = "--set 来料来源=甲厂 --set 用途=生产 --set 说明=P-7 --set 采购员=王";
constexpr const char* kHeadOut = "--set 用途=生产 --set 说明=李 --set 仓管员=王 --set 出库日期=2002-03-06";

class BatchStockTest : public testing::Test {
  protected:
    BatchResult Run(const std::string& command) const {
        return RunBatch("stock " + command + " --folder '" + folder_.Path().string() + "'");
    }
    /// What a command that must succeed prints.
    std::string Output(const std::string& command) const {
        const BatchResult result = Run(command);
        EXPECT_EQ(result.exitCode, 0) << command << ": " << result.errors;
        return result.output;
    }
    /// The complaint of a command that must fail, without its line end.
    std::string Complaint(const std::string& command) const {
        const BatchResult result = Run(command);
        EXPECT_EQ(result.exitCode, 1) << command;
        EXPECT_EQ(result.output, "") << command;
        return result.errors.substr(0, result.errors.find('\n'));
    }
    /// A --line; its columns are written with "|" here.
    static std::string Line(std::string columns) {
        for (char& c : columns) c = c == '|' ? '\t' : c;
        return " --line '" + columns + "'";
    }
    static std::string In(const std::string& lines, const std::string& date = "2002-03-04") {
        return std::string("in ") + kHeadIn + " --set 采购日期=" + date + lines;
    }
    static std::string Out(const std::string& lines) { return std::string("out ") + kHeadOut + lines; }

    const TempFolder folder_;
};

TEST_F(BatchStockTest, NotesGoInAndOutAndAreFound) {
    EXPECT_EQ(Output(In(Line("上滑|S80|支|12.5|10|型材") + Line("月牙锁|L1|把|3|4|五金件"))), "1\n");
    EXPECT_EQ(Output(In(Line("上滑|S80|支|13|5|型材"), "2002/3/5")), "2\n");
    EXPECT_EQ(Output(Out(Line("上滑|S80|支|15|型材"))), "1\n");
    // 12.5 * 10 + 3 * 4 = 137; 13 * 5 = 65.
    const std::string heading = "单据编号\t来料来源\t采购金额\t用途\t说明\t采购员\t采购日期\n";
    EXPECT_EQ(Output("query --table 入库单"), heading + "1\t甲厂\t137\t生产\tP-7\t王\t2002-03-04\n" +
                                                  "2\t甲厂\t65\t生产\tP-7\t王\t2002-03-05\n");
    EXPECT_EQ(Output("query --table 入库单 --field 采购日期 --value 2002-03-05"),
              heading + "2\t甲厂\t65\t生产\tP-7\t王\t2002-03-05\n");
    EXPECT_EQ(Output("query --table 入库单 --field 采购金额 --value 1"), heading);
    EXPECT_EQ(Output("query --table 出库单"),
              "单据编号\t用途\t说明\t仓管员\t出库日期\n1\t生产\t李\t王\t2002-03-06\n");
    EXPECT_EQ(Output("query --table 库存表"),
              "名称\t规格\t厂家\t单位\t种类\t入库量\t库存量\n"
              "上滑\tS80\t甲厂\t支\t型材\t15\t0\n"
              "月牙锁\tL1\t甲厂\t把\t五金件\t4\t4\n");
    EXPECT_EQ(Output("query --table 入库单子表 --field 规格 --value L1"),
              "单据编号\t名称\t规格\t单位\t单价\t数量\t种类\n1\t月牙锁\tL1\t把\t3\t4\t五金件\n");
    EXPECT_EQ(Output("query --table 出库单子表"),
              "单据编号\t名称\t规格\t单位\t数量\t种类\n1\t上滑\tS80\t支\t15\t型材\n");

    const BatchResult cleared = Run("clear");
    EXPECT_EQ(cleared.exitCode, 0);
    EXPECT_TRUE(cleared.errors.starts_with("操作已完成!\n清空前的仓库保存在：")) << cleared.errors;
    EXPECT_EQ(Output("query --table 入库单"), heading);
    EXPECT_EQ(Output(In(Line("上滑|S80|支|1|1|型材"))), "1\n") << "the numbers begin again";
}

TEST_F(BatchStockTest, WhatTheScreensRefuseIsRefused) {
    Output(In(Line("上滑|S80|支|12.5|10|型材")));
    const std::string incomplete = "数据不完整!请重新输入。";
    const std::string good = Line("上滑|S80|支|1|型材");
    const std::pair<std::string, std::string> kCases[] = {
        {"in --set 来料来源=甲" + Line("上滑|S80|支|1|1|型材"), incomplete},
        {In(""), incomplete},
        {In(Line("上滑|S80|支|1|1")), incomplete},
        {In(Line("上滑||支|1|1|型材")), incomplete},
        {In(Line("上滑|S80|支|1|1|木材")), "种类“木材”应是 型材、型钢、板材 或 五金件。"},
        {In(Line("上滑|S80|支|1|1.5|型材")), "数量“1.5”不是整数，请只输入数字。"},
        {Out(Line("上滑|S80|支|11|型材")), "数据不能大于10,请重新输入!"},
        {Out(Line("上滑|S80|支|0|型材")), "数据不能为0!请重新输入。"},
        {Out(Line("上滑|S80|支||型材")), "数据不能为0!请重新输入。"},
        {Out(Line("上滑|S81|支|1|型材")), "库存表里没有规格“S81”。"},
        {Out(good) + " --set 采购员=王", "出库单没有可以填写的“采购员”。"},
        {Out(good) + " --set 用途", "“用途”应写成 名称=值。"},
        {"query --table 入库单 --field 单据编号 --value x", "数据是数值类型,请正确输入!"},
        {"query --table 入库单 --field 采购日期 --value 昨天", "数据是日期类型(2002-03-04),请正确输入!"},
        {"query --table 入库单 --field 单据编号", "字段值不能为空!"},
        {"query --table 入库单 --field 没有 --value 1", "“入库单”没有字段“没有”。"},
    };
    for (const auto& [command, complaint] : kCases) EXPECT_EQ(Complaint(command), complaint) << command;
    EXPECT_NE(Complaint("query --table user"), "");
    // Nothing of all that was written; lines that only together go beyond the stock are named and go out.
    EXPECT_EQ(Output("query --table 出库单"), "单据编号\t用途\t说明\t仓管员\t出库日期\n");
    const BatchResult below = Run(Out(Line("上滑|S80|支|10|型材") + good));
    EXPECT_EQ(below.output, "1\n");
    EXPECT_EQ(below.errors, "出库后库存量小于零：规格“S80”：出库 11，库存 10\n");
    EXPECT_EQ(Output("query --table 库存表 --field 库存量 --value -1"),
              "名称\t规格\t厂家\t单位\t种类\t入库量\t库存量\n上滑\tS80\t甲厂\t支\t型材\t10\t-1\n");
}

}  // namespace
}  // namespace kalvane::test
