#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "optimise/plan.h"
#include "page/page_target.h"
#include "session/optimise_settings.h"

namespace kalvane {

/// A stretch of a bar, in mm from its left end.
struct CutBlock {
    enum class Kind {
        Piece,
        Loss,  ///< the allowance of the piece before: kerfs and end
        Rest
    };
    Kind kind = Kind::Piece;
    int start = 0;
    int length = 0;
    std::size_t colour = 0;  ///< of a piece: the place of its length among those of the material
};

/// Bars that are cut alike.
struct CutBar {
    std::string pattern;
    std::int64_t first = 0;  ///< number of the first of them among the material's bars, from 1
    std::int64_t count = 0;
    /// A bar that holds more than it can is drawn as the bars that its pieces fill one after the other; these
    /// are the 2nd and later of them.
    bool isContinued = false;
    bool isOverfilled = false;
    std::vector<CutBlock> blocks;
};

struct CutMaterial {
    std::string name;
    std::int64_t bars = 0;
    std::vector<CutBar> cuts;
};

/// The bars of a plan in its order, like bars together. A piece takes its length and behind it the
/// allowance.
std::vector<CutMaterial> LayOutBars(const std::vector<PlanRow>& plan, const OptimiseSettings& settings);

/// 切割图: a plan as bars drawn to scale, one row below the other, with a row that names each material. All
/// rows are of one height. It paints the same on a screen and on paper.
class CutDiagram {
  public:
    /// Height of a row, twips.
    static constexpr float kRowHeight = 855;

    CutDiagram(const std::vector<PlanRow>& plan, const OptimiseSettings& settings);
    CutDiagram(const CutDiagram&) = delete;
    CutDiagram& operator=(const CutDiagram&) = delete;

    std::size_t RowCount() const { return rows_.size(); }

    /// Paints a row with its top at `y`, from 0 to `width`, twips.
    void PaintRow(PageTarget& target, std::size_t row, float y, float width) const;

    /// Paints all rows as pages with a heading, a foot with the page's number, and the material again at the
    /// top of a page that continues it.
    void PaintPages(PageTarget& target, const std::string& projectName) const;

  private:
    struct Row {
        const CutMaterial* material;
        const CutBar* bar;  ///< null for the row that names the material
    };

    void PaintName(PageTarget& target, const CutMaterial& material, float y) const;
    void PaintBar(PageTarget& target, const CutBar& bar, float y, float width) const;

    int stock_;
    std::vector<CutMaterial> materials_;
    std::vector<Row> rows_;  // they point into the materials
};

}  // namespace kalvane
