#include "optimise/cut_diagram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "drawing/shapes.h"
#include "numeric/number.h"
#include "optimise/fitting_text.h"
#include "optimise/pattern_text.h"

namespace kalvane {
namespace {

/// Light enough for black text, and distinct in grey too: light and middle tones alternate.
constexpr std::array<PageColour, 12> kColours{{{158, 202, 245},
                                               {255, 233, 160},
                                               {149, 211, 143},
                                               {255, 214, 214},
                                               {222, 165, 102},
                                               {205, 240, 240},
                                               {197, 168, 228},
                                               {232, 245, 190},
                                               {240, 150, 150},
                                               {222, 226, 255},
                                               {120, 196, 196},
                                               {245, 222, 245}}};
constexpr PageColour kLossColour{90, 90, 90};
constexpr PageColour kRestColour{255, 255, 255};

constexpr PageFont kNameFont{11, true};
constexpr PageFont kCaptionFont{9, false};
constexpr float kBlockPoints = 9;

// A row from its top, in twips: the caption, the bar, a gap.
constexpr float kCaptionTop = 60;
constexpr float kBarTop = 300;
constexpr float kBarHeight = 460;
constexpr float kHatchGap = 120;

// A page, in twips.
constexpr PageFont kTitleFont{14, true};
constexpr float kTitleHeight = 420;
constexpr float kHeadingHeight = 320;
constexpr float kFootHeight = 320;

/// Strokes from the lower left to the upper right, by which a rest is recognised in grey print too.
void Hatch(PageTarget& target, const Box& box) {
    const float height = box.y2 - box.y1;
    const auto strokes = static_cast<int>(std::ceil((box.x2 - box.x1 + height) / kHatchGap));
    for (int stroke = 1; stroke < strokes; ++stroke) {
        const float x = box.x1 - height + kHatchGap * static_cast<float>(stroke);
        const float from = std::max(x, box.x1);
        const float to = std::min(x + height, box.x2);
        target.DrawLine(from, box.y2 - (from - x), to, box.y2 - (to - x));
    }
}

/// The places of a material's lengths, the longest first.
std::map<int, std::size_t> PlacesOf(const std::vector<PlanRow>& plan, const std::string& material) {
    std::map<int, std::size_t> places;
    for (const PlanRow& row : plan) {
        if (row.material != material) continue;
        for (const PatternPart& part : ParsePattern(row.pattern)) places[part.length] = 0;
    }
    std::size_t place = places.size();
    for (auto& [length, at] : places) at = --place;
    return places;
}

/// Fills bars with the pieces of one pattern, in their order.
class BarFiller {
  public:
    BarFiller(std::vector<CutBar>& cuts, CutBar bar, const OptimiseSettings& settings)
        : cuts_(cuts), bar_(std::move(bar)), stock_(settings.CLC), allowance_(settings.PieceAllowance()) {}

    void Add(int length, std::size_t colour) {
        if (used_ > 0 && used_ + length + allowance_ > stock_) {
            bar_.isOverfilled = true;
            Close();
            bar_.isContinued = true;
        }
        bar_.blocks.push_back({CutBlock::Kind::Piece, used_, length, colour});
        if (allowance_ > 0) bar_.blocks.push_back({CutBlock::Kind::Loss, used_ + length, allowance_, 0});
        used_ += length + allowance_;
    }

    void Close() {
        if (used_ < stock_) bar_.blocks.push_back({CutBlock::Kind::Rest, used_, stock_ - used_, 0});
        cuts_.push_back(bar_);
        bar_.blocks.clear();
        used_ = 0;
    }

  private:
    std::vector<CutBar>& cuts_;
    CutBar bar_;
    int stock_;
    int allowance_;
    int used_ = 0;
};

std::string Numbers(const CutBar& bar) {
    std::string text = "第 " + std::to_string(bar.first);
    if (bar.count > 1) text += "～" + std::to_string(bar.first + bar.count - 1);
    text += " 根";
    if (bar.count > 1) text += "  × " + std::to_string(bar.count);
    if (bar.isContinued) return text + "（超装，续）";
    return bar.isOverfilled ? text + "（超装：一根放不下，依次续排）" : text;
}

}  // namespace

std::vector<CutMaterial> LayOutBars(const std::vector<PlanRow>& plan, const OptimiseSettings& settings) {
    std::vector<CutMaterial> materials;
    std::map<int, std::size_t> places;
    for (const PlanRow& row : plan) {
        if (materials.empty() || materials.back().name != row.material) {
            materials.emplace_back().name = row.material;
            places = PlacesOf(plan, row.material);
        }
        CutMaterial& material = materials.back();
        CutBar bar;
        bar.pattern = row.pattern;
        bar.first = material.bars + 1;
        bar.count = RoundToInt32(ParseNumber(row.count));
        material.bars += bar.count;
        BarFiller filler(material.cuts, bar, settings);
        for (const PatternPart& part : ParsePattern(row.pattern)) {
            for (int i = 0; i < part.count; ++i) filler.Add(part.length, places[part.length]);
        }
        filler.Close();
    }
    return materials;
}

CutDiagram::CutDiagram(const std::vector<PlanRow>& plan, const OptimiseSettings& settings)
    : stock_(settings.CLC), materials_(LayOutBars(plan, settings)) {
    for (const CutMaterial& material : materials_) {
        rows_.push_back({&material, nullptr});
        for (const CutBar& bar : material.cuts) rows_.push_back({&material, &bar});
    }
}

void CutDiagram::PaintRow(PageTarget& target, std::size_t row, float y, float width) const {
    if (rows_[row].bar == nullptr) {
        PaintName(target, *rows_[row].material, y);
    } else {
        PaintBar(target, *rows_[row].bar, y, width);
    }
}

void CutDiagram::PaintName(PageTarget& target, const CutMaterial& material, float y) const {
    target.SetFont(kNameFont);
    const std::string text = material.name + "    " + std::to_string(material.bars) + " 根";
    target.DrawText(0, y + kRowHeight - kCaptionTop - target.TextHeight(text), text);
}

void CutDiagram::PaintBar(PageTarget& target, const CutBar& bar, float y, float width) const {
    target.SetFont(kCaptionFont);
    const std::string numbers = Numbers(bar);
    target.DrawText(0, y + kCaptionTop, numbers);
    const CutBlock& last = bar.blocks.back();
    if (last.kind == CutBlock::Kind::Rest) {
        const std::string rest = "余 " + std::to_string(last.length) + " mm";
        target.DrawText(width - target.TextWidth(rest), y + kCaptionTop, rest);
    }

    const float scale = width / static_cast<float>(std::max(stock_, last.start + last.length));
    for (const CutBlock& block : bar.blocks) {
        const Box box{static_cast<float>(block.start) * scale, y + kBarTop,
                      static_cast<float>(block.start + block.length) * scale, y + kBarTop + kBarHeight};
        switch (block.kind) {
            case CutBlock::Kind::Piece:
                target.FillBox(box, kColours[block.colour % kColours.size()]);
                DrawRectangle(target, {box.x1, box.y1}, {box.x2, box.y2});
                DrawFittingText(target, box, std::to_string(block.length), {kBlockPoints, false});
                break;
            case CutBlock::Kind::Loss:
                target.FillBox(box, kLossColour);
                break;
            case CutBlock::Kind::Rest:
                target.FillBox(box, kRestColour);
                Hatch(target, box);
                DrawRectangle(target, {box.x1, box.y1}, {box.x2, box.y2});
                break;
        }
    }
}

void CutDiagram::PaintPages(PageTarget& target, const std::string& projectName) const {
    const float top = kTitleHeight + kHeadingHeight;
    const auto rowsPerPage =
        static_cast<std::size_t>(std::max(2.0F, (target.Height() - top - kFootHeight) / kRowHeight));
    // The rows of each page, from the top: a page that begins within a material names it again.
    std::vector<std::vector<Row>> pages;
    for (const Row& row : rows_) {
        const bool namesMaterial = row.bar == nullptr;
        // A name at the foot would be parted from its bars.
        const std::size_t needed = namesMaterial ? 2 : 1;
        if (pages.empty() || pages.back().size() + needed > rowsPerPage) {
            pages.emplace_back();
            if (!namesMaterial) pages.back().push_back({row.material, nullptr});
        }
        pages.back().push_back(row);
    }
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (page > 0) target.NewPage();
        target.SetFont(kTitleFont);
        const std::string title = "切割图";
        target.DrawText((target.Width() - target.TextWidth(title)) / 2, 0, title);
        target.SetFont(kCaptionFont);
        target.DrawText(0, kTitleHeight, "工程名称：" + projectName);
        const std::string foot =
            "第 " + std::to_string(page + 1) + " 页，共 " + std::to_string(pages.size()) + " 页";
        target.DrawText((target.Width() - target.TextWidth(foot)) / 2,
                        target.Height() - target.TextHeight(foot), foot);
        float y = top;
        for (const Row& row : pages[page]) {
            if (row.bar == nullptr) {
                PaintName(target, *row.material, y);
            } else {
                PaintBar(target, *row.bar, y, target.Width());
            }
            y += kRowHeight;
        }
    }
    if (!pages.empty()) target.EndDocument();
}

}  // namespace kalvane
