#include "optimise/run.h"

#include <algorithm>
#include <map>
#include <random>

#include "numeric/error.h"
#include "numeric/number.h"
#include "optimise/bar_bound.h"
#include "optimise/manual_run.h"
#include "optimise/plan.h"
#include "optimise/plan_yield.h"
#include "support/main_store.h"
#include "support/plan_checker.h"

namespace kalvane::test {
namespace {

constexpr const char* kPlan = "Select 材料名称,切割规格,数量,优化比率,剩余料长 from 优化结果";

/// The settings of a run over the main store's demand.
class RunTest : public MainStoreTest {
  protected:
    RunTest() { settings.CLC = 6000; }

    void Demand(const std::string& material, const std::vector<std::pair<int, int>>& lengthsAndCounts) {
        for (const auto& [length, count] : lengthsAndCounts) {
            Insert({"优化数据 (规格,长度,数量) values('" + material + "'," + std::to_string(length) + "," +
                    std::to_string(count) + ")"});
        }
    }

    /// The plan of the given materials, by default of all.
    std::string Run(std::int16_t scheme, std::vector<std::string> materials = {}) {
        if (materials.empty()) materials = ListMaterials(*store_);
        RunOptimisation(*store_, settings, scheme, materials, notice_, {});
        return Rows(kPlan);
    }

    OptimiseSettings settings;
};

TEST_F(RunTest, BothSchemesFillBarsAndReportWhatTheyCannot) {
    using Demanded = std::vector<std::pair<int, int>>;  // lengths and counts
    const Demanded mixed = {{2000, 1}, {2000, 2}, {1500, 4}, {800, 5}};
    const struct {
        std::int16_t scheme, bar, allowance;
        float ratio;
        std::int16_t nodes;
        Demanded demand;
        const char *plan, *shown;
    } rows[] = {
        {0, 6000, 20, 1, 20, {{5980, 1}}, "A|5980|1|1|0", ""},  // exactly the bar
        {0, 6000, 20, 1, 20, {{7000, 1}, {3000, 1}}, "A|3000|1|0.5033333|2980", "|过大：7020"},
        {0, 6000, 20, 1, 20, {{8000, 1}, {7000, 1}}, "", "|过大：7020"},
        {0, 6000, 20, 1, 20, {{-21, 1}, {500, 1}}, "", "|异常值：-1"},
        {1, 6000, 20, 0.9F, 20, mixed,
         "A|800*5+1500|1|93.67|380\nA|1500+2000*2|1|92.67|440\nA|1500*2+2000|1|84.33|940", ""},
        {1, 6000, 20, 1, 5, mixed, "A|800+1500*2+2000|2|98|120\nA|800*3+2000|1|74.67|1520", ""},
        {1, 6000, 0, 1, 20, {{200, 100}}, "A|200*100|1|66.67|2000", ""},  // small pieces: one row
        {1, 0, 0, 1, 20, {{200, 100}}, "", "提示|在数据检查时发现值:200大于根长度!"},  // a bar never set
        // A length that only the last bars come to is reported after the rows of the others.
        {1,
         6000,
         0,
         1,
         4,
         {{3000, 4}, {7000, 1}},
         "A|3000*2|2|100|0",
         "提示|在数据检查时发现值:7000大于根长度!"},
        // Numbers beyond 16 bits, and divisions by zero.
        {0, 6000, 10, 1, 20, {{100, 32768}}, "", "出错|溢出"},
        {0, 6000, 10, 1, 20, {{32758, 1}}, "", "出错|溢出"},
        {0, 6000, 10, 1, 20, {{-10, 1}}, "", "出错|除数为零"},
        {1, 6000, 10, 1, 20, {{100, 32768}}, "", "出错|溢出"},
        {1, 6000, 10, 1, 20, {{32758, 1}}, "", "出错|溢出"},
        {1, 6000, 10, 1, 20, {{100, 20000}, {200, 12768}}, "", "出错|溢出"},  // the 32768th piece
        {1, 6000, 10, 1, 0, {{1000, 9}}, "", "出错|除数为零"},
        {1, 6000, 10, 1, 0, {{1000, 0}}, "", ""},
    };
    for (const auto& row : rows) {
        store_->Execute("Delete from 优化数据");
        notice_.shown.clear();
        settings = {row.bar, 0, static_cast<std::int16_t>(row.allowance / 2), 0, row.ratio, "", row.nodes};
        Demand("A", row.demand);
        EXPECT_EQ(Run(row.scheme), row.plan);
        EXPECT_EQ(notice_.shown.empty() ? "" : notice_.shown[0], row.shown) << row.plan;
        EXPECT_LE(notice_.shown.size(), 1U);
    }
}

TEST_F(RunTest, FailureEndsTheRunOrTheLinearMaterialOnly) {
    settings.CLC = 32000;
    Demand("A", {{500, 1}});
    for (int i = 0; i < 20; ++i) Demand("B", {{1000 + i, 1}});
    Demand("B", {{9, 1}});  // 20 * 5 characters and one more
    Demand("C", {{500, 1}});
    EXPECT_EQ(Run(0), "A|500|1|0.015625|31500");
    EXPECT_EQ(Run(1), "A|500|1|1.56|31500\nC|500|1|1.56|31500");
    ASSERT_EQ(notice_.shown.size(), 2u);
    for (const std::string& text : notice_.shown) EXPECT_EQ(text.rfind("出错|", 0), 0u) << text;
    EXPECT_EQ(notice_.icons.back(), NoticeIcon::Error);

    store_->Execute("Update 优化数据 set 长度=999 where 长度=1000");  // 100 characters
    EXPECT_EQ(Run(0, {"B"}).substr(0, 7), "B|1019+");
    EXPECT_EQ(notice_.shown.size(), 2u);
}

TEST_F(RunTest, PlansCutExactlyTheDemand) {
    const auto seed = static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
    SCOPED_TRACE("seed " + std::to_string(seed));  // --gtest_random_seed repeats it
    std::mt19937 random(seed);
    const auto pick = [&random](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    int overfilled = 0;
    for (int round = 0; round < 24; ++round) {
        store_->Execute("Delete from 优化数据");
        settings.LTC = static_cast<std::int16_t>(pick(0, 20));
        settings.CKK = static_cast<std::int16_t>(pick(0, 5));
        settings.NODES = static_cast<std::int16_t>(pick(3, 64));
        settings.YHBL = round % 3 == 0 ? 0.95F : 1.0F;
        const auto scheme = static_cast<std::int16_t>(round % 2);
        std::map<int, int> demand;
        const bool isShort = round % 8 == 1;  // three pieces in a sample are far from filling a bar
        if (isShort) settings.NODES = 3;
        for (int i = isShort ? 3 : pick(1, 12); i > 0; --i) {
            const int length = pick(400, isShort ? 600 : 3300);
            const int count = isShort ? 15 : pick(1, 15);
            demand[length] += count;
            Demand("A", {{length, count}});
        }
        Run(scheme);
        const PlanChecker checker{settings.CLC, settings.LTC + 2 * settings.CKK,
                                  scheme == 0 ? 0 : settings.NODES};
        const PlanCheck check = checker.Check(demand, LoadPlan(*store_));
        EXPECT_TRUE(check.faults.empty()) << "round " << round << ": " << check.faults;
        overfilled += check.overfilled;

        const MaterialYield yield = PlanYield(LoadSummedPlan(*store_), settings).at(0);
        EXPECT_EQ(yield.bars, check.bars);
        EXPECT_EQ(yield.overfilledBars, check.overfilled);
        BarBound bound(settings.CLC, yield.demand);
        while (bound.Step()) continue;
        EXPECT_TRUE(check.overfilled > 0 || bound.Bars() <= check.bars);
    }
    EXPECT_GE(overfilled, 3);
    EXPECT_TRUE(notice_.shown.empty());
}

TEST_F(RunTest, ProgressTellsTheStageAndCancellingKeepsTheRowsWritten) {
    Demand("A", {{100, 1}});
    std::mt19937 random(5);
    for (int i = 0; i < 60; ++i) Demand("B", {{static_cast<int>(random() % 3000) + 3000, 1}});
    settings.NODES = 60;
    std::vector<int> calls(2);
    RunStage last;
    EXPECT_EQ(RunOptimisation(*store_, settings, 1, {"A", "B"}, notice_,
                              [&](const RunStage& stage) {
                                  ++calls[stage.material];
                                  last = stage;
                              }),
              RunEnd::Finished);
    EXPECT_EQ(calls[0], 2);   // its turn, its row
    EXPECT_GT(calls[1], 62);  // no two pieces share a bar: 60 rows, its turn, and ticks between
    EXPECT_EQ(last.pieces, 60);
    EXPECT_EQ(last.placed, 60);
    EXPECT_EQ(last.bars, 61);

    for (const std::int16_t scheme : {std::int16_t{0}, std::int16_t{1}}) {
        const std::string whole = Run(scheme);
        const RunEnd end =
            RunOptimisation(*store_, settings, scheme, {"A", "B"}, notice_, [](const RunStage& stage) {
                if (stage.bars == 3) throw RunCancelled();
            });
        EXPECT_EQ(end, RunEnd::Cancelled);
        const std::string kept = Rows(kPlan);
        EXPECT_EQ(std::count(kept.begin(), kept.end(), '\n'), 2) << kept;
        EXPECT_EQ(whole.substr(0, kept.size()), kept);
    }
    EXPECT_TRUE(notice_.shown.empty());
}

TEST_F(RunTest, ManualRunReplacesDemandAndPlan) {
    Demand("A", {{100, 1}});
    Run(0);
    const std::vector<ManualRow> rows = {{"2000", "3"}, {"1000", "2"}, {"2000", "3"}};
    RunManual(*store_, settings, 1, "M", rows, notice_, {});
    EXPECT_EQ(Rows(kPlan), "M|1000*2+2000*2|1|100|0\nM|2000*3|1|100|0\nM|2000|1|33.33|4000");
    EXPECT_EQ(ListMaterials(*store_), std::vector<std::string>{""});

    settings.NODES = 0;  // the linear optimiser reports, the practical one throws
    RunManual(*store_, settings, 1, "M", rows, notice_, {});
    EXPECT_EQ(notice_.shown, std::vector<std::string>{"出错|除数为零"});
    EXPECT_THROW(RunManual(*store_, settings, 0, "M", {{"100", "1"}, {"0", "2"}}, notice_, {}), NumericError);
    EXPECT_EQ(Rows("Select 长度 from 优化数据"), "100\n0");
}

}  // namespace
}  // namespace kalvane::test
