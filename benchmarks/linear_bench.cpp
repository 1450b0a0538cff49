#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <string>

#include "optimise/run.h"
#include "platform/notice.h"
#include "scratch_store.h"

namespace kalvane {
namespace {

constexpr int kPieces = 1000;
constexpr int kLengths = 25;

class SilentNotice : public Notice {
  public:
    void Show(const std::string& text, const std::string&, NoticeIcon) override { last = text; }
    std::string last;
};

/// Lays out 1,000 pieces of 25 lengths on bars of 6 m, exact fills wanted. A walk through all choices of
/// 60 pieces would have up to 2^60 branches to visit for each bar.
void LinearThousandPieces(benchmark::State& state) {
    bench::ScratchStore store;
    std::mt19937 random(1);
    for (int i = 0; i < kLengths; ++i) {
        const int length = std::uniform_int_distribution<int>(400, 2600)(random);
        store.connection.Execute("Insert into 优化数据 (规格,长度,数量) values('A'," +
                                 std::to_string(length) + "," + std::to_string(kPieces / kLengths) + ")");
    }
    const OptimiseSettings settings{6000, 10, 5, 0, 1, "", static_cast<std::int16_t>(state.range(0))};
    SilentNotice notice;
    for (auto _ : state) {
        RunOptimisation(store.connection, settings, 1, {"A"}, notice, {});
    }
    if (!notice.last.empty()) state.SkipWithError(notice.last.c_str());
    Cursor plan =
        store.connection.OpenCursor("Select count(*),sum(数量),sum(优化比率*数量)/sum(数量) from 优化结果");
    state.counters["rows"] = plan.Field(0).Number();
    state.counters["bars"] = plan.Field(1).Number();
    state.counters["percent"] = plan.Field(2).Number();
}
BENCHMARK(LinearThousandPieces)->Arg(20)->Arg(60)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
