#include <algorithm>
#include <cmath>
#include <map>
#include <regex>
#include <set>

#include "app/store_setup.h"
#include "formula/labels.h"
#include "numeric/text.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

using Row = std::vector<std::string>;

constexpr double kBarLength = 5900;    // usable part of a 6000 mm bar
constexpr double kPanelInRebate = 15;  // mm of a panel hidden at each edge
constexpr double kDrawnToWithin = 4;   // mm; drawings are in whole units of a third of a millimetre or so
constexpr double kSheetScale = 5500 / 9495.0;  // component sheet to drawing, in x
constexpr double kStub = 186;                  // twips that a mark's end sticks out, at any scale

/// The new store of a workshop, made once for all tests.
Connection& Store() {
    static const TempFolder folder;
    static Connection store = [] {
        CreateMissingStores(folder.Path());
        return Connection(folder / kMainStoreName, StoreKind::Main);
    }();
    return store;
}

std::vector<Row> Select(const std::string& sql) {
    std::vector<Row> rows;
    for (Cursor cursor = Store().OpenCursor("Select " + sql); !cursor.Eof(); cursor.MoveNext()) {
        Row& row = rows.emplace_back();
        for (int i = 0; i < cursor.FieldCount(); ++i) row.push_back(cursor.Field(i).TextOrEmpty());
    }
    return rows;
}

std::set<std::string> Column(const std::string& sql) {
    std::set<std::string> values;
    for (const Row& row : Select(sql)) values.insert(row[0]);
    return values;
}

/// Names that a formula uses, in capitals.
std::set<std::string> NamesIn(const std::string& formula) {
    static const std::regex name("[A-Za-z][A-Za-z0-9]*");
    std::set<std::string> names;
    for (std::sregex_iterator match(formula.begin(), formula.end(), name), end; match != end; ++match) {
        names.insert(UpperCase(match->str()));
    }
    return names;
}

/// The value of a formula, which must use no name but the labels.
double Value(const std::string& formula, const LabelSet& labels) {
    std::set<std::string> known;
    for (const std::string& name : labels.names) known.insert(UpperCase(name));
    for (const std::string& name : NamesIn(formula)) EXPECT_TRUE(known.contains(name)) << formula;
    return EvalWithLabels(formula, labels);
}

TEST(StarterLibrary, EveryRowNamesOneMaterialOfARichCatalogue) {
    const std::vector<Row> series = Select("编号 from 型材系列");
    EXPECT_GE(series.size(), 3U);
    for (const Row& row : series) EXPECT_GE(Select("* from 型材 where 系列编号=" + row[0]).size(), 12U);
    EXPECT_GE(Select("* from 型钢").size(), 8U);
    EXPECT_GE(Select("* from 玻璃").size(), 8U);
    EXPECT_GE(Select("* from 配件").size(), 20U);
    const std::string links[][2] = {{"规格 from 窗型材", "型材型号 from 型材"},
                                    {"规格 from 窗型钢", "型钢规格 from 型钢"},
                                    {"名称 from 窗板材", "玻璃名称 from 玻璃"},
                                    {"规格 from 窗配件", "配件规格 from 配件"}};
    for (const auto& [used, offered] : links) {
        const std::set<std::string> catalogue = Column(offered);
        EXPECT_EQ(catalogue.size(), Select(offered).size()) << "two of one name: " << offered;
        for (const std::string& name : Column(used)) EXPECT_TRUE(catalogue.contains(name)) << name;
    }
}

/// Cuts every type at the sample's size and at a smaller one.
TEST(StarterLibrary, EveryWindowTypeClosesAndIsGlazedWithinItsOpening) {
    const std::vector<Row> types = Select("编号,名称,图号 from 门窗");
    EXPECT_GE(types.size(), 24U);
    EXPECT_EQ(Column("图号 from 门窗").size(), types.size()) << "a drawing each";
    for (const Row& type : types) {
        const std::string rowsOf = " where 窗号=" + type[0];
        const std::vector<Row> drawn = Select("Chars from Strings where Bn=" + type[2]);
        const std::vector<Row> sample = Select("编号 from 工程门窗 where 门窗编号=" + type[0]);
        ASSERT_EQ(sample.size(), 1U) << type[1];
        for (const double scale : {1.0, 0.85}) {
            SCOPED_TRACE(type[1] + " x " + std::to_string(scale));
            LabelSet labels = LoadPlainLabels(Store(), sample[0][0]);
            for (std::string& value : labels.values) value = std::to_string(std::stod(value) * scale);
            ASSERT_EQ(std::set(labels.names.begin(), labels.names.end()).size(), drawn.size());
            const double width = Value("B", labels);
            const double height = Value("H", labels);
            const double opening = width * height;

            double frames = 0;
            double joints = 0;
            const std::string bars = "名称,数量,计算公式 from ";
            std::vector<Row> cut = Select(bars + "窗型材" + rowsOf);
            for (Row& steel : Select(bars + "窗型钢" + rowsOf)) cut.push_back(std::move(steel));
            for (const Row& row : cut) {
                const double length = Value(row[2], labels);
                const double count = Value(row[1], labels);
                EXPECT_TRUE(length > 50 && length < kBarLength) << row[0] << " " << length;
                EXPECT_GE(count, 1) << row[0];
                if (row[0].ends_with("框B") || row[0].ends_with("框H")) frames += count * length;
                if (row[0] == "拼条" || row[0] == "转角柱") joints += count * length;
            }
            // Frames go once round the opening and on both sides of a joint. Welding adds 6 a piece, a post
            // takes 60 off each of its two frames.
            EXPECT_NEAR(frames, 2 * (width + height) + 2 * joints, 180);

            double area = 0;
            for (const Row& row : Select("名称,数量,长公式,宽公式 from 窗板材" + rowsOf)) {
                const double x = Value(row[2], labels);
                const double y = Value(row[3], labels);
                EXPECT_TRUE(x > 100 && y > 100) << row[0] << " " << x << " " << y;
                area += std::stod(row[1]) * x * y;
            }
            EXPECT_TRUE(area > 0.35 * opening && area < 0.9 * opening) << area / opening;
            for (const Row& row : Select("名称,数量 from 窗配件" + rowsOf)) {
                EXPECT_GE(std::nearbyint(Value(row[1], labels)), 1) << row[0];
            }
        }
    }
}

/// The drawing of a window of the sample: its type's, or a composite's main drawing.
std::string DrawingOf(const std::string& typeNumber) {
    if (typeNumber.starts_with("-")) return typeNumber.substr(1);
    return Select("图号 from 门窗 where 编号=" + typeNumber)[0][0];
}

double Span(const std::string& from, const std::string& to) {
    return std::abs(std::stod(to) - std::stod(from));
}

/// A drawing and the formulas tell of one window, so each is a check on the other: every label has a mark as
/// long as its value, and every panel, less what its rebate hides, is seen as a rectangle.
TEST(StarterLibrary, DrawingsAreTrueToScaleAndShowThePanelsThatAreCut) {
    for (const Row& window : Select("编号,门窗编号,洞口宽,门窗名称 from 工程门窗")) {
        SCOPED_TRACE(window[3]);
        const std::string ofDrawing = " where Bn=" + DrawingOf(window[1]);
        const LabelSet labels = LoadPlainLabels(Store(), window[0]);
        std::vector<double> values;
        for (const std::string& value : labels.values) values.push_back(std::stod(value));

        std::vector<double> marks;
        double widest = 0;
        for (const Row& mark : Select("X1,Y1,X2,Y2,X3 from Dim" + ofDrawing)) {
            marks.push_back(std::max(Span(mark[0], mark[2]), Span(mark[1], mark[3])));
            if (mark[1] == mark[3]) widest = std::max(widest, marks.back());
            EXPECT_GE(std::stod(mark[4]) * kSheetScale, kStub) << "the mark leaves the sheet";
        }
        ASSERT_EQ(marks.size(), values.size());
        ASSERT_GT(widest, 0);
        const double scale = widest / std::stod(window[2]);
        std::sort(marks.begin(), marks.end());
        std::sort(values.begin(), values.end());
        for (std::size_t i = 0; i < marks.size(); ++i)
            EXPECT_NEAR(marks[i] / scale, values[i], kDrawnToWithin);

        const std::vector<Row> seen = Select("X1,Y1,X2,Y2 from Rectangle" + ofDrawing);
        for (const Row& panel : Select("长公式,宽公式 from 窗板材 where 窗号=" + window[1])) {
            const double width = EvalWithLabels(panel[0], labels) - 2 * kPanelInRebate;
            const double height = EvalWithLabels(panel[1], labels) - 2 * kPanelInRebate;
            const bool drawn = std::any_of(seen.begin(), seen.end(), [&](const Row& corners) {
                return std::abs(Span(corners[0], corners[2]) / scale - width) < kDrawnToWithin &&
                       std::abs(Span(corners[1], corners[3]) / scale - height) < kDrawnToWithin;
            });
            EXPECT_TRUE(drawn) << width << " x " << height;
        }
    }
}

TEST(StarterLibrary, SampleProjectIsComplete) {
    const std::vector<Row> project = Select("编号 from 工程 where 工程名称='示例工程'");
    ASSERT_EQ(project.size(), 1U);
    const std::vector<Row> contract = Select("* from 工程合同 where HTBN=" + project[0][0]);
    ASSERT_EQ(contract.size(), 1U);
    EXPECT_EQ(std::count(contract[0].begin(), contract[0].end(), ""), 0);

    const std::vector<Row> windows =
        Select("编号,门窗编号,洞口宽,洞口高,门窗名称 from 工程门窗 where 工程编号=" + project[0][0]);
    EXPECT_GE(windows.size(), 12U);
    for (const Row& window : windows) {
        SCOPED_TRACE(window[4]);
        const std::string drawing = DrawingOf(window[1]);
        const std::string drawingName = Select("图名 from 图 where 编号=" + drawing)[0][0];
        const auto namesADoor = [](const std::string& name) { return name.find("门") != std::string::npos; };
        EXPECT_EQ(namesADoor(window[4]), namesADoor(drawingName)) << "the settlement prices by the name";
        const std::vector<Row> labels = Select("MC,px,py,schar from 标注 where Mcnum=" + window[0]);
        const std::vector<Row> drawn = Select("Chars,X1,Y1 from Strings where Bn=" + drawing);
        ASSERT_EQ(labels.size(), drawn.size());
        std::map<std::string, std::string> values;
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            EXPECT_EQ(drawn[i], Row(labels[i].begin(), labels[i].begin() + 3));
            values[labels[i][0]] = labels[i][3];
        }
        EXPECT_EQ(values["B"], window[2]);
        EXPECT_EQ(values["H"], window[3]);
    }
}

TEST(StarterLibrary, MembersOfCompositesFillThem) {
    const std::vector<Row> composites = Select("编号,洞口宽,樘数,门窗名称 from 工程门窗 where 门窗编号<0");
    EXPECT_EQ(composites.size(), 3U);
    for (const Row& composite : composites) {
        SCOPED_TRACE(composite[3]);
        EXPECT_GT(std::stoi(composite[2]), 1);
        double width = 0;
        for (const Row& member :
             Select("CBN,CMC from 标注2 where MCBN=" + composite[0] + " Group by CBN,CMC")) {
            const std::string rows =
                " from 标注2 where MCBN=" + composite[0] + " and CMC='" + member[1] + "'";
            EXPECT_EQ(Select("MC,px,py" + rows),
                      Select("Chars,X1,Y1 from Strings where Bn=" + DrawingOf(member[0])));
            const Row wide = Select("MCZ,Count" + rows + " and MC='B'")[0];
            width += std::stod(wide[0]) * std::stod(wide[1]);
        }
        EXPECT_EQ(width, std::stod(composite[1]));
    }
}

}  // namespace
}  // namespace kalvane::test
