#include <benchmark/benchmark.h>
#include <muParser.h>

#include <string>
#include <vector>

#include "formula/labels.h"

namespace {

/// The shapes of the starter library's formulas, over the eight labels of its larger drawings.
const char* const kFormulas[] = {
    "B+6",        "H+6",          "b1-60-42+2*8+6",     "h1-2*60+2*8+6",   "(B-2*60+20)/2-38+6",
    "h2-60-42-4", "(B+H)*2/1000", "(b1-60-42+16)-2*64", "H-h1-42-60+16+6", "b2-(60+42)+2*8-2*64-6",
};

const std::vector<std::string> kNames = {"B", "H", "b1", "b2", "b3", "h1", "h2", "h3"};
const std::vector<std::string> kValues = {"2400", "1800", "700", "1000", "700", "450", "1350", "300"};

void OurEvaluator(benchmark::State& state) {
    kalvane::LabelSet set;
    set.names = kNames;
    set.values = kValues;
    set.px.resize(kNames.size());
    set.py.resize(kNames.size());
    set.last = static_cast<std::int16_t>(kNames.size() - 1);
    kalvane::SortLabelsByLength(set.names, set.values, set.px, set.py, set.last);
    for (auto _ : state) {
        for (const char* formula : kFormulas) benchmark::DoNotOptimize(kalvane::EvalWithLabels(formula, set));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kFormulas)));
}
BENCHMARK(OurEvaluator);

/// The same job: eight variables defined, the formula parsed and evaluated once.
void MuParser(benchmark::State& state) {
    std::vector<double> values;
    for (const std::string& value : kValues) values.push_back(std::stod(value));
    for (auto _ : state) {
        for (const char* formula : kFormulas) {
            mu::Parser parser;
            for (std::size_t i = 0; i < kNames.size(); ++i) parser.DefineVar(kNames[i], &values[i]);
            parser.SetExpr(formula);
            benchmark::DoNotOptimize(parser.Eval());
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kFormulas)));
}
BENCHMARK(MuParser);

}  // namespace
