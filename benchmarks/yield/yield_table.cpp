// Prints, for generated workshop demands, the bars that both schemes use beside the bound that no plan can
// beat and beside the plan of a linear programming kit. Every plan is checked piece by piece; the program
// fails when one is wrong.

#include <chrono>
#include <cstdio>
#include <map>
#include <random>
#include <string>

#include "../peak_memory.h"
#include "../scratch_store.h"
#include "glpk_peer.h"
#include "optimise/bar_bound.h"
#include "optimise/plan.h"
#include "optimise/run.h"
#include "platform/notice.h"
#include "store/command_scope.h"
#include "support/plan_checker.h"

namespace kalvane::bench {
namespace {

constexpr int kDemands = 36;
constexpr int kPeerSeconds = 3;
const OptimiseSettings kSettings{6000, 10, 5, 0, 1, "", 20};

/// Pieces by length: frames and sashes of some window types, sizes to the centimetre or the millimetre, in
/// pairs. Every ninth is of short beads only.
std::map<int, int> MakeDemand(unsigned seed) {
    std::mt19937 random(seed);
    const auto pick = [&random](int from, int to) {
        return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1));
    };
    const std::size_t lengths = static_cast<std::size_t>(5 + 35 * static_cast<int>(seed) / (kDemands - 1));
    const int pieces = pick(50, 2000);
    const int step = seed % 2 == 0 && seed % 9 != 4 ? 10 : 1;
    const bool isShort = seed % 9 == 4;
    const int shortest = isShort ? 120 : 300;
    const int longest = isShort ? 300 : seed % 3 == 0 ? 2600 : 1700;
    std::map<int, int> demand;
    while (demand.size() < lengths) demand[pick(shortest / step, longest / step) * step] = 2;
    for (int left = pieces - 2 * static_cast<int>(lengths); left > 1;) {
        auto length = demand.begin();
        std::advance(length, pick(0, static_cast<int>(lengths) - 1));
        const int more = std::min(left / 2, pick(1, 12)) * 2;
        length->second += more;
        left -= more;
    }
    return demand;
}

class SilentNotice : public Notice {
  public:
    void Show(const std::string& text, const std::string&, NoticeIcon) override { last = text; }
    std::string last;
};

struct Measured {
    double milliseconds = 0;
    double mebibytes = 0;
};

template <typename Work>
Measured Measure(const Work& work) {
    ResetPeakMemory();
    const double before = PeakMemory();
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return {time.count(), PeakMemory() - before};
}

/// Sums over all demands.
struct Total {
    std::int64_t bars = 0;
    std::int64_t atBound = 0;
    std::int64_t overfilled = 0;
    double milliseconds = 0;
    double mebibytes = 0;

    void Add(std::int64_t more, std::int64_t bound, const Measured& measured) {
        bars += more;
        atBound += more == bound ? 1 : 0;
        milliseconds += measured.milliseconds;
        mebibytes = std::max(mebibytes, measured.mebibytes);
    }
};

void PrintTotal(const char* name, const Total& total, std::int64_t bound) {
    std::printf(
        "%-9s %6lld bars, %5.2f %% over the bound, at the bound %lld of %d, overfilled %lld, "
        "%9.1f ms, %5.1f MiB\n",
        name, static_cast<long long>(total.bars),
        100.0 * static_cast<double>(total.bars - bound) / static_cast<double>(bound),
        static_cast<long long>(total.atBound), kDemands, static_cast<long long>(total.overfilled),
        total.milliseconds, total.mebibytes);
}

int PrintTable() {
    ScratchStore store;
    SilentNotice notice;
    const int allowance = kSettings.LTC + 2 * kSettings.CKK;
    Total totals[3];
    Total bounds;
    int faults = 0;
    std::printf(
        "Yield: bars of %d mm, allowance %d mm. Per plan: bars, ms, MiB; ! marks a bar that the rule "
        "for small pieces overfills.\n",
        kSettings.CLC, allowance);
    std::printf("%4s %7s %6s | %6s %7s | %18s | %18s | %18s\n", "seed", "lengths", "pieces", "bound", "ms",
                "scheme 1", "scheme 2", "GLPK");
    for (unsigned seed = 0; seed < kDemands; ++seed) {
        const std::map<int, int> demand = MakeDemand(seed);
        std::vector<BarDemand> widths;
        std::map<int, int> peerDemand;
        int pieces = 0;
        InCommand(store.connection, [&] {
            store.connection.Execute("Delete from 优化数据");
            for (const auto& [length, count] : demand) {
                store.connection.Execute("Insert into 优化数据 (规格,长度,数量) values('A'," +
                                         std::to_string(length) + "," + std::to_string(count) + ")");
                widths.push_back({length + allowance, count});
                peerDemand[length + allowance] = count;
                pieces += count;
            }
        });

        std::int64_t bound = 0;
        const Measured bounding = Measure([&] {
            BarBound programme(kSettings.CLC, widths);
            while (programme.Step()) continue;
            bound = programme.Bars();
        });
        bounds.Add(bound, bound, bounding);
        std::printf("%4u %7zu %6d | %6lld %7.1f |", seed, demand.size(), pieces,
                    static_cast<long long>(bound), bounding.milliseconds);

        for (const std::int16_t scheme : {std::int16_t{0}, std::int16_t{1}}) {
            const Measured measured =
                Measure([&] { RunOptimisation(store.connection, kSettings, scheme, {"A"}, notice, {}); });
            const test::PlanChecker checker{kSettings.CLC, allowance, scheme == 0 ? 0 : kSettings.NODES};
            const test::PlanCheck check = checker.Check(demand, LoadPlan(store.connection));
            if (!check.faults.empty() || (check.overfilled == 0 && check.bars < bound)) {
                std::printf(" WRONG: %s", check.faults.c_str());
                ++faults;
            }
            Total& total = totals[scheme];
            total.Add(check.bars, bound, measured);
            total.overfilled += check.overfilled;
            std::printf(" %5d%c %6.1f %4.1f |", check.bars, check.overfilled > 0 ? '!' : ' ',
                        measured.milliseconds, measured.mebibytes);
        }

        PeerPlan peer;
        const Measured solving =
            Measure([&] { peer = SolveWithGlpk(kSettings.CLC, peerDemand, kPeerSeconds); });
        totals[2].Add(peer.bars, bound, solving);
        std::printf(" %5lld%c %6.0f %4.1f\n", static_cast<long long>(peer.bars), peer.isProven ? ' ' : '~',
                    solving.milliseconds, solving.mebibytes);
        if (peer.bound != bound) {
            std::printf("WRONG: the peer's bound is %lld\n", static_cast<long long>(peer.bound));
            ++faults;
        }
        std::fflush(stdout);
    }
    std::printf(
        "GLPK: the pattern programme by column generation, then whole bars over its patterns; ~ marks "
        "a plan that was the best after %d s. Its bound is compared with ours.\n",
        kPeerSeconds);
    PrintTotal("bound", bounds, bounds.bars);
    PrintTotal("scheme 1", totals[0], bounds.bars);
    PrintTotal("scheme 2", totals[1], bounds.bars);
    PrintTotal("GLPK", totals[2], bounds.bars);
    if (!notice.last.empty()) std::printf("WRONG: %s\n", notice.last.c_str());
    return faults == 0 && notice.last.empty() ? 0 : 1;
}

}  // namespace
}  // namespace kalvane::bench

int main() {
    return kalvane::bench::PrintTable();
}
