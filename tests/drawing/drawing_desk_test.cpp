#include "drawing/drawing_desk.h"

#include <set>

#include "drawing/desk_kit.h"
#include "numeric/error.h"
#include "platform/files.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class DrawingDeskTest : public MainStoreTest {
  protected:
    std::set<std::filesystem::path> Unsaved() const {
        std::set<std::filesystem::path> files;
        for (const auto& file : std::filesystem::directory_iterator(folder_.Path())) {
            if (file.path().filename().string().starts_with("unsaved-drawing-")) files.insert(file.path());
        }
        return files;
    }

    TestDesk t_{folder_.Path()};
    DrawingDesk& desk_ = t_.desk;
};

/// Typed points in cells of 118.6875 by 123.984375 units; 16 rows are 1983.75.
TEST_F(DrawingDeskTest, ToolsMakeTheirItemsAndSayWhatTheyWant) {
    struct {
        const char* commands;
        const char* prompt;
        const char* items;
    } const cases[] = {
        {"l", "请输入第一点", ""},
        {"L 0,0 16,0 16,16 esc", "", "Line 0,0 1899,0; Line 1899,0 1899,1983.75"},
        {"R 16,0", "请输入下一角点", ""},
        {"R 16,0 0,16 0,0", "", "Rec 1899,0 0,1983.75"},
        {"R 0,0 0,0", "", "Rec 0,0 0,0"},
        {"A 0,0 @16<0", "", "Dir 0,0 1899,0"},
        {"D", "请输入标注起点", ""},
        {"D 0,0", "请输入标注终点", ""},
        {"D 0,0 16,0", "请输入标注宽点", ""},
        {"D 0,0 16,0 @0,16", "", "Dim 0,0 1899,0 1899,1983.75"},
        {"T", "输入文字中心坐标", ""},
        {"T 16,16", "", "String 1899,1983.75 B"},
        {"E", "请输入第一角点", ""},
        // A tool armed while another is under way takes its step with the point (0, 0).
        {"L 16,0 R", "", "Rec 1899,0 0,0"},
        {"L 16,0 16,16 R", "请输入下一点", "Line 1899,0 1899,1983.75"},
        {"L 16,0 16,16 T", "请输入下一点", "Line 1899,0 1899,1983.75"},
        {"R T", "", "String 0,0 B"},
        {"R L 16,16", "", "Rec 0,0 1899,1983.75"},
        {"L 16,0 D 0,16", "请输入标注宽点", "Line 1899,0 0,1983.75"},
        // Neither a point nor a command.
        {"L x @10 10<5 LL , ", "请输入下一点", ""},
    };
    for (const auto& c : cases) {
        TestDesk t(folder_.Path());
        t.typedText = "B";
        t.Run(c.commands);
        EXPECT_EQ(t.prompt, c.prompt) << c.commands;
        EXPECT_EQ(t.Items(), c.items) << c.commands;
    }
    desk_.Run(DeskCommand::Arc);
    EXPECT_EQ(t_.prompt, "请输入弧的起点坐标");
    t_.Run("16,0 8,16");
    EXPECT_EQ(t_.prompt, "请输入弧的方向坐标");
    t_.Run("0,0 T 1,1");  // an empty text makes nothing
    EXPECT_EQ(t_.Items(), "Arc 1899,0 949.5,1983.75 0,0");
    EXPECT_EQ(desk_.Picture().GetCurDraw(), "");
    t_.Run("open SAVE Print q");
    EXPECT_EQ(t_.asked, "open save print quit ");
}

TEST_F(DrawingDeskTest, TheMouseSnapsAndOnlyItsShapeIsTransient) {
    desk_.ShowGrid();
    EXPECT_EQ(t_.canvas.dots.size(), 81U * 65U);
    EXPECT_EQ(t_.canvas.dots[65 * 19 + 47], (Point{2255.0625F, 5827.265625F}));
    desk_.MoveMouse({2300, 5900});
    EXPECT_EQ(t_.coordinates, " 2255, 5827");
    EXPECT_EQ(t_.canvas.crossHair, (Point{2255, 5827}));
    t_.Run("L");
    desk_.PressMouse(true, {2300, 5900});
    desk_.MoveMouse({130, 130});
    desk_.MoveMouse({0, 0});
    EXPECT_EQ(t_.canvas.transient.painted, "2255,5827 0,0");
    t_.Run("@1,0");  // from the last press, unsnapped
    EXPECT_EQ(t_.canvas.persistent.painted, "2255,5827 2373.688,5827");
    desk_.PressMouse(false, {500, 500});
    EXPECT_EQ(t_.canvas.transient.painted, "");
    t_.Run("ESC R @1,0");  // Esc is a press at the origin
    desk_.MoveMouse({0, 130});
    EXPECT_EQ(t_.canvas.transient.painted.substr(0, 18), "118.6875,0 0,0; 0,");
}

TEST_F(DrawingDeskTest, ADeletionTakesWhatHasAPointInItsDashedBoxAndRepaints) {
    // Inside is 16,16. The second line crosses the box, as an edge of the first rectangle does; the third
    // line moves to the place of the first and is tested there.
    t_.typedText = "B";
    t_.Run("L 48,48 16,16 esc L 0,16 48,16 esc L 16,16 16,16 esc R 0,0 48,16 R 16,16 48,48 A 48,48 16,16");
    t_.Run("D 48,48 48,48 16,16 T 16,16 T 48,48");
    desk_.Run(DeskCommand::Arc);
    t_.Run("48,48 16,16 48,48 E 20,15");
    EXPECT_TRUE(t_.canvas.dashed);
    t_.Run("10,16");  // points on an edge count, and the corners are put in order
    EXPECT_FALSE(t_.canvas.dashed);
    EXPECT_EQ(t_.Items(), "Line 0,1983.75 5697,1983.75; Rec 0,0 5697,1983.75; String 5697,5951.25 B");
    EXPECT_EQ(t_.canvas.persistent.painted,
              "0,1983.75 5697,1983.75; 0,0 5697,0; 5697,0 5697,1983.75; 5697,1983.75 0,1983.75; "
              "0,1983.75 0,0; 5697,5831.25 B");  // half of 240 above its middle
    // A rectangle that took the delete tool's step leaves the dashes behind.
    t_.Run("E 1,1 R");
    EXPECT_EQ(t_.Items(),
              "Line 0,1983.75 5697,1983.75; Rec 0,0 5697,1983.75; Rec 118.6875,123.9844 0,0; "
              "String 5697,5951.25 B");
    EXPECT_TRUE(t_.canvas.dashed);
    t_.Run("E esc");
    EXPECT_FALSE(t_.canvas.dashed);
}

TEST_F(DrawingDeskTest, AShapeBeyondTheArrayIsOnTheCanvasUntilTheNextRepaint) {
    DrawingItems items;
    items.rectangles.resize(361);
    desk_.Replace([&](CPictire& picture) { picture.SetItems(items); });
    t_.Run("R 16,0 0,16");
    EXPECT_EQ(t_.notice.shown, std::vector<std::string>{"#Error|数组超出范围,请与程序员联系"});
    EXPECT_TRUE(t_.canvas.persistent.painted.ends_with("1899,1983.75 1899,0"));
    t_.Run("redraw");
    EXPECT_EQ(t_.canvas.persistent.painted.find("1899"), std::string::npos);
}

TEST_F(DrawingDeskTest, EachGestureIsTakenBackAndDoneAgain) {
    const std::string one = "Line 0,0 1899,0";
    const std::string two = one + "; Line 1899,0 1899,1983.75";
    const std::pair<const char*, std::string> steps[] = {
        {"L 0,0 16,0 16,16 undo", one},  // the chain ends, its last line goes
        {"R 0,0 undo", one},             // nothing was made yet: only the gesture ends
        {"redo", two},
        {"E 0,0 20,20", ""},
        {"undo", two},
        {"C undo", two},
        {"undo undo", ""},
    };
    for (const auto& [commands, items] : steps) {
        t_.Run(commands);
        EXPECT_EQ(t_.Items(), items) << commands;
        const bool isUndone = std::string(commands).ends_with("undo");
        EXPECT_TRUE(!isUndone || desk_.Picture().GetCurDraw().empty()) << commands;
    }
    EXPECT_EQ(t_.title, "绘图");
    EXPECT_FALSE(desk_.CanUndo());
    t_.Run("A 0,0 16,0");
    EXPECT_FALSE(desk_.CanRedo());
}

TEST_F(DrawingDeskTest, TheLibrarysDrawingsAreAddedAndSavedUnderTheirNumber) {
    Insert({"图 (编号,图名) values(7,'固定窗')", "Line (x1,y1,x2,y2,Bn) values(1,2,3,4,7)"});
    t_.Run("A 0,0 16,0");
    desk_.OpenDrawing(*store_, "7", "固定窗");
    EXPECT_EQ(t_.Items(), "Line 1,2 3,4; Dir 0,0 1899,0");
    desk_.Undo();  // a save must not go to 7 then
    EXPECT_FALSE(desk_.HasPlace(*store_));
    desk_.Redo();
    ASSERT_TRUE(desk_.HasPlace(*store_));
    desk_.SaveDrawing(*store_);
    EXPECT_EQ(Rows("Select X1 from Line where Bn=7") + Rows("Select X2 from Arrow where Bn=7"), "11899");
    t_.Run("C");
    EXPECT_FALSE(desk_.HasPlace(*store_));
    t_.Run("R 0,0 16,16");
    desk_.SaveNewDrawing(*store_, "8", "新");
    desk_.Undo();  // the number stays: saving came in between
    EXPECT_TRUE(desk_.HasPlace(*store_));
    EXPECT_EQ(t_.title, "文件->新");
    store_->Execute("Delete from 图 where 编号=8");
    EXPECT_FALSE(desk_.HasPlace(*store_)) << "a save would leave parts that no drawing owns";
}

TEST_F(DrawingDeskTest, FilesTakeTheDrawingsPlaceAndKeepWhatTheyCannotHold) {
    const auto file = folder_ / "a.MC";
    t_.Run("L 0,0 16,0 esc");
    desk_.SaveFile(file);
    EXPECT_EQ(Unsaved().size(), 0U) << "it is in a file";
    t_.typedText = "\U0001F600";
    t_.Run("T 0,0");
    EXPECT_THROW(desk_.SaveFile(file), CodePageError);
    EXPECT_EQ(Unsaved().size(), 1U);
    t_.Run("C R 0,0 16,16");
    desk_.OpenFile(file);
    EXPECT_EQ(t_.Items(), "Line 0,0 1899,0");
    WriteFileAtomically(file, "Line\r\n1\r\n2\r\n3\r\n4\r\nx\r\n");
    EXPECT_THROW(desk_.OpenFile(file), NumericError);
    EXPECT_EQ(t_.Items(), "Line 1,2 3,4") << "what came before stays";
}

TEST_F(DrawingDeskTest, WhatIsSavedNowhereWaitsForTheNextDesk) {
    Insert({"图 (编号,图名) values(7,'固定窗')"});
    {
        TestDesk first(folder_.Path());
        first.desk.OpenDrawing(*store_, "7", "固定窗");
        first.typedText = "框\\n 厚";
        first.Run("T 1,1 R 0,0 1,1");
        first.desk.Run(DeskCommand::Arc);
        first.Run("0,0 1,1 2,0 C L 0,0 16,0");  // ended here, as by a kill
    }
    EXPECT_EQ(Unsaved().size(), 2U);
    TestDesk next(folder_.Path());
    next.Run("A 0,0 16,0");
    ASSERT_TRUE(next.desk.OffersRecovery());
    next.desk.Recover();
    EXPECT_EQ(next.Items(), "Line 0,0 1899,0");
    next.desk.Recover();
    EXPECT_EQ(next.Items(),
              "Rec 0,0 118.6875,123.9844; String 118.6875,123.9844 框\\n 厚; "
              "Arc 0,0 118.6875,123.9844 237.375,0");
    EXPECT_EQ(next.title, "文件->固定窗");
    EXPECT_FALSE(next.desk.OffersRecovery());
    EXPECT_EQ(Unsaved().size(), 3U) << "nothing is saved yet";
    next.desk.SaveDrawing(*store_);
    next.desk.Undo();
    next.desk.Undo();
    EXPECT_EQ(next.Items(), "Dir 0,0 1899,0");
    EXPECT_EQ(Unsaved().size(), 2U) << "line and arrow; no doubles";
}

TEST_F(DrawingDeskTest, RecoveryFilesAreFewAndReadAsFarAsTheyGo) {
    for (int i = 1; i <= 7; ++i) t_.Run("C R 0,0 16," + std::to_string(i));
    EXPECT_LE(Unsaved().size(), 6U);
    WriteFileAtomically(*Unsaved().rbegin(),
                        "Line 1 2 3\nLine 1 2 3 x\nDir 1 2 3 4\nLine nan 2 3 4\n\xff\x01Rec\nString 1 2");
    TestDesk next(folder_.Path());
    next.desk.Recover();
    EXPECT_EQ(next.Items(), "Dir 1,2 3,4; String 1,2 ");
    // A folder that cannot be written is told once, and drawing goes on.
    TestDesk nowhere(folder_ / "none");
    nowhere.Run("R 0,0 1,1");
    EXPECT_EQ(nowhere.prompt.substr(0, std::string("未保存的图").size()), "未保存的图");
    nowhere.Run("R 0,0 1,1");
    EXPECT_EQ(nowhere.prompt, "");
}

}  // namespace
}  // namespace kalvane::test
