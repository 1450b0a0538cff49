#include "optimise/cut_diagram.h"

#include "optimise/piece_labels.h"
#include "support/page_text.h"

namespace kalvane::test {
namespace {

class CutDiagramTest : public testing::Test {
  protected:
    static PlanRow Row(const char* material, const char* pattern, const char* count) {
        return {material, pattern, count, "", ""};
    }

    OptimiseSettings settings_{6000, 10, 5, 0, 1, "", 20};
    FixedMeasure measure_;
};

TEST_F(CutDiagramTest, LaysOutPiecesLossesAndRestAndNumbersTheBars) {
    const std::vector<CutMaterial> materials =
        LayOutBars({Row("A", "2000*2+1500", "12"), Row("A", "5980", "1"), Row("B", "1500", "2")}, settings_);
    const auto text = [](const CutBar& bar) {
        std::string blocks = std::to_string(bar.first) + "x" + std::to_string(bar.count);
        for (const CutBlock& block : bar.blocks) {
            blocks += " " + std::string(1, "PLR"[static_cast<int>(block.kind)]) +
                      std::to_string(block.start) + ":" + std::to_string(block.length);
            if (block.kind == CutBlock::Kind::Piece) blocks += "c" + std::to_string(block.colour);
        }
        return blocks;
    };
    ASSERT_EQ(materials.size(), 2u);
    EXPECT_EQ(materials[0].bars, 13);
    // A piece loses 20 behind it. Of A's lengths 5980 is the first, 2000 the second.
    EXPECT_EQ(text(materials[0].cuts[0]),
              "1x12 P0:2000c1 L2000:20 P2020:2000c1 L4020:20 P4040:1500c2 L5540:20 R5560:440");
    EXPECT_EQ(text(materials[0].cuts[1]), "13x1 P0:5980c0 L5980:20");
    EXPECT_EQ(text(materials[1].cuts[0]), "1x2 P0:1500c0 L1500:20 R1520:4480");
}

TEST_F(CutDiagramTest, AnOverfilledBarGoesOnOnFurtherLines) {
    settings_.LTC = 0;
    settings_.CKK = 0;
    const std::vector<CutMaterial> materials = LayOutBars({Row("A", "200*100", "1")}, settings_);
    ASSERT_EQ(materials[0].cuts.size(), 4u);  // 30 to a bar
    EXPECT_EQ(materials[0].bars, 1);
    for (std::size_t i = 0; i < 4; ++i) {
        const CutBar& bar = materials[0].cuts[i];
        EXPECT_TRUE(bar.isOverfilled);
        EXPECT_EQ(bar.isContinued, i > 0);
        EXPECT_EQ(bar.blocks.size(), i < 3 ? 30u : 11u);  // 10 pieces and the rest
    }
    EXPECT_EQ(materials[0].cuts[3].blocks.back().start, 2000);
}

TEST_F(CutDiagramTest, PaintsToScaleAndNamesTheMaterialOnEveryPage) {
    const CutDiagram diagram({Row("A", "3000*1", "2")}, settings_);
    PageRecord row(measure_, 6000, 5000);
    diagram.PaintRow(row, 1, 100, 6000);  // a millimetre is a twip
    std::vector<std::string> fills;
    for (const std::string& command : CommandTexts(row.Pages()[0])) {
        if (command.find("fill") == 0) fills.push_back(command);
    }
    EXPECT_EQ(fills, (std::vector<std::string>{"fill 0,400 3000,860", "fill 3000,400 3020,860",
                                               "fill 3020,400 6000,860"}));
    // The rest text ends at the right end: 10 characters of 90 twips, counting the Chinese one twice.
    const std::vector<std::string> all = CommandTexts(row.Pages()[0]);
    EXPECT_EQ(all[0], "0,160 第 1～2 根  × 2");
    EXPECT_EQ(all[1], "5100,160 余 2980 mm");
    // Four characters of a length, in the middle of its block.
    EXPECT_NE(std::find(all.begin(), all.end(), "1320,517.5 3000"), all.end());

    std::vector<PlanRow> plan;
    for (int i = 0; i < 5; ++i) plan.push_back(Row("A", (std::to_string(1000 + i) + "*5").c_str(), "1"));
    plan.push_back(Row("B", "10*2", "1"));
    // Room for four rows between the heading of 740 and the foot of 320.
    PageRecord pages(measure_, 12000, 740 + 320 + 4 * CutDiagram::kRowHeight + 10);
    CutDiagram(plan, settings_).PaintPages(pages, "阳光花园");
    std::string heads;
    for (const Page& page : pages.Pages()) {
        int texts = 0;
        for (const PageCommand& command : page) {
            const auto* text = std::get_if<PageText>(&command);
            if (text == nullptr) continue;
            if (++texts <= 3 || text->text.find(" 根") != std::string::npos) heads += text->text + "|";
        }
        heads += "\n";
    }
    // After A's last two bars there is room for one row more, but not for B's name and a bar.
    EXPECT_EQ(heads,
              "切割图|工程名称：阳光花园|第 1 页，共 3 页|A    5 根|第 1 根|第 2 根|第 3 根|\n"
              "切割图|工程名称：阳光花园|第 2 页，共 3 页|A    5 根|第 4 根|第 5 根|\n"
              "切割图|工程名称：阳光花园|第 3 页，共 3 页|B    1 根|第 1 根|\n");
    PageRecord nothing(measure_, 6000, 5000);
    CutDiagram({}, settings_).PaintPages(nothing, "");
    EXPECT_TRUE(nothing.IsEmpty());
}

TEST_F(CutDiagramTest, LabelsComeInTheOrderOfCuttingOnSheetsOf24) {
    const std::vector<PieceLabel> labels = PieceLabels({Row("A", "2000*2+1500", "8"), Row("B", "800", "1")});
    ASSERT_EQ(labels.size(), 25u);
    EXPECT_EQ(labels[3].length, 2000);
    EXPECT_EQ(labels[5].length, 1500);
    EXPECT_EQ(labels[5].bar, 2);
    EXPECT_EQ(labels[24].material, "B");
    EXPECT_EQ(labels[24].bar, 1);

    PageRecord sheets(measure_, 12000, 16800);  // a label is 4000 x 2100
    PaintLabels(sheets, labels);
    ASSERT_EQ(sheets.Pages().size(), 2u);
    const std::vector<std::string> first = CommandTexts(sheets.Pages()[0]);
    ASSERT_EQ(first.size(), 24u * 4);
    // The fifth label stands in the middle of the second row, 230 twips off its edges. Its length is 550
    // high, its number 225; "第 2 根" is 6 and "5 / 25" 6 characters of 90, the Chinese ones twice that.
    EXPECT_EQ(std::vector<std::string>(first.begin() + 16, first.begin() + 20),
              (std::vector<std::string>{"4230,2330 A", "4230,2875 2000 mm", "4230,3745 5 / 25",
                                        "7140,3745 第 2 根"}));
    EXPECT_EQ(CommandTexts(sheets.Pages()[1])[0], "230,230 B");
    EXPECT_EQ(CommandTexts(sheets.Pages()[1])[2], "230,1645 25 / 25");
}

}  // namespace
}  // namespace kalvane::test
