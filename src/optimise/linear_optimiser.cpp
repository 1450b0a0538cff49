#include "optimise/linear_optimiser.h"

#include <algorithm>

#include "numeric/error.h"
#include "numeric/number.h"
#include "optimise/pattern_text.h"

namespace kalvane {
namespace {

/// A fill ratio in percent, with two decimals.
float Percent(float ratio) {
    return NarrowToFloat(RoundTo4Decimals(static_cast<double>(ratio)) * 100);
}

}  // namespace

LinearOptimiser::LinearOptimiser(PlanWriter& plan, const OptimiseSettings& settings, Notice& notice,
                                 RunReporter& reporter)
    : plan_(plan), settings_(settings), notice_(notice), reporter_(reporter), search_(notice, [this] {
          reporter_.Tick();
      }) {}

void LinearOptimiser::OptimiseLinear(const std::string& name, std::int16_t stock, Cursor& demand) {
    try {
        LoadPieces(demand);
        Run(name, stock);
    } catch (const Error& error) {
        notice_.Show(error.what(), "出错", NoticeIcon::Error);
    }
}

void LinearOptimiser::LoadPieces(Cursor& demand) {
    pieceTable_.ClearAll();
    for (demand.MoveFirst(); !demand.Eof(); demand.MoveNext()) {
        const std::int16_t pieces = RoundToInt16(demand.Field(1).Number());
        const std::int64_t length = RoundToInt32(demand.Field(0).Number());
        for (int i = 0; i < pieces; ++i) pieceTable_.AddItem(Checked16(length + settings_.PieceAllowance()));
    }
    reporter_.ExpectPieces(pieceTable_.GetCount());
}

void LinearOptimiser::Run(const std::string& name, std::int16_t stock) {
    while (pieceTable_.GetCount() > settings_.NODES) {
        if (pieceTable_.GetCount() == 0) return;
        SamplePieces();
        EmitPattern(name, stock, poolTable_, pieceTable_);
    }
    DrainTable(name, stock, pieceTable_, pieceTable_);
}

/// An even sample of the pieces, which keeps their ascending order.
void LinearOptimiser::SamplePieces() {
    poolTable_.ClearAll();
    if (settings_.NODES == 0) throw NumericError::DivisionByZero();
    const std::int16_t step = FloorToInt16(static_cast<double>(pieceTable_.GetCount()) / settings_.NODES);
    for (int k = 1; k <= settings_.NODES; ++k) {
        poolTable_.AddItem(pieceTable_.GetItemValue(Checked16(std::int64_t{step} * k)));
    }
}

void LinearOptimiser::DrainTable(const std::string& name, std::int16_t stock, const CTable& pool,
                                 CTable& pieces) {
    while (pieces.GetCount() > 0) EmitPattern(name, stock, pool, pieces);
}

/// Finds one pattern in `pool`, writes its row and takes its pieces out of `pieces`.
void LinearOptimiser::EmitPattern(const std::string& name, std::int16_t stock, const CTable& pool,
                                  CTable& pieces) {
    switch (search_.FindBestPattern(stock, pool, settings_.YHBL)) {
        case PatternSearch::Result::BadData:
            pieces.ClearAll();
            break;
        case PatternSearch::Result::WholePoolFits:
            EmitAll(name, pieces);
            break;
        case PatternSearch::Result::Pattern:
            EmitRepeated(name, stock, pieces);
            break;
    }
}

/// All pieces as one row of one bar. When the pool is a sample shorter than the bar, this may put more on the
/// row than one bar holds; PlanYield counts such bars.
void LinearOptimiser::EmitAll(const std::string& name, CTable& pieces) {
    YHArray& pattern = search_.Found();
    for (int position = 1; position <= pieces.GetCount(); ++position) {
        pattern.AddPiece(pieces.GetItemValue(static_cast<std::int16_t>(position)));
    }
    WriteRow(name, 1, search_.YHRatio());
    pieces.ClearAll();
}

/// The pattern found, as many times as the pieces allow.
void LinearOptimiser::EmitRepeated(const std::string& name, std::int16_t stock, CTable& pieces) {
    YHArray& pattern = search_.Found();
    std::int16_t repetition = 0;
    std::int64_t sum = 0;
    for (YHRecord& record : pattern) {
        record.available = pieces.GetValueCount(record.length);
        const std::int16_t times = FloorToInt16(static_cast<double>(record.available) / record.count);
        repetition = &record == &pattern[0] ? times : std::min(repetition, times);
        sum += std::int64_t{record.count} * record.length;
    }
    WriteRow(name, repetition, static_cast<float>(static_cast<double>(sum) / stock));
    for (YHRecord& record : pattern) record.count = Checked16(std::int64_t{record.count} * repetition);
    pieces.DeleteList(pattern);
}

void LinearOptimiser::WriteRow(const std::string& name, std::int16_t repetition, float ratio) {
    plan_.Add({name, PatternText(search_.Found(), settings_), ShortText(std::int64_t{repetition}),
               ShortText(Percent(ratio)), ShortText(search_.YHRest())});
    int pieces = 0;
    for (const YHRecord& record : search_.Found()) pieces += record.count;
    reporter_.Placed(pieces * repetition, repetition);
}

}  // namespace kalvane
