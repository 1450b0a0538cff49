// 门窗表: what stands under each picture, and where pictures, values and the signature are printed.

#include "project/window_list.h"

#include <algorithm>

#include "project/composite_windows.h"
#include "support/main_store.h"
#include "support/page_text.h"

namespace kalvane::test {
namespace {

using WindowListTest = MainStoreTest;

std::string Lines(const WindowListCell& cell) {
    std::string text = cell.drawing;
    for (const std::string& line : cell.lines) text += "|" + line;
    return text;
}

TEST_F(WindowListTest, CompositesAreListedWithTheirMembers) {
    Insert({"门窗 (编号,名称,图号) values(4,'边窗',7)", "Line (Bn,X1,Y1,X2,Y2) values(9,100,200,300,400)"});
    const CompositeMember member{"边窗11", "4"};
    StoreMemberRows(*store_, {"飘窗10", "-9"}, {{{"B", "2400", "10", "20"}}}, "1");
    StoreMemberRows(*store_, member, {{{"B", "600", "1", "2"}}}, "2");
    WindowEntry bay{"ZC9", "客厅", "2400", "1500", "2", "无", "1", "-9", ""};
    SaveComposite(*store_, bay);
    AddWindow(*store_, {"C1", "厨房", "900", "1205", "4", "无", "1", "4", ""}, {});
    AddWindow(*store_, {"C2", "走廊", "800", "1000", "1", "无", "1", "5", ""}, {});  // of a type that is gone

    std::vector<WindowEntry> windows = ListWindows(*store_, "1");
    WindowList list = MakeWindowList(*store_, "示例", windows);
    ASSERT_EQ(list.cells.size(), 4U);
    EXPECT_EQ(Lines(list.cells[0]), "9|ZC9　客厅|2400×1500|2 樘　每樘 3.60㎡|面积 7.20㎡");
    EXPECT_EQ(Lines(list.cells[1]), "7|└ 边窗11|属 ZC9|每樘 2 个");
    EXPECT_EQ(Lines(list.cells[2]), "7|C1　厨房|900×1205|4 樘　每樘 1.08㎡|面积 4.34㎡");
    EXPECT_EQ(Lines(list.cells[3]), "|C2　走廊|800×1000|1 樘　每樘 0.80㎡|面积 0.80㎡");
    // 3.6 * 2 + 1.0845 * 4 + 0.8
    EXPECT_EQ(list.total, "合计：7 樘，面积 12.34㎡");

    // Pictures 1899 wide are a fifth of the frame. A cell has 180 more, and below the 1587 of its picture
    // four lines of 225 and three gaps of 90; the head takes 640, the foot 450, the signature 900.
    list.cells.push_back(list.cells.back());
    const FixedMeasure measure;
    PageRecord page(measure, 4 * (1899 + 180), 640 + 2 * 2757 + 850 + 450);
    PaintWindowList(page, *store_, list, notice_);
    ASSERT_EQ(page.Pages().size(), 2U) << "both rows fill the first page, the signature needs one more";
    const std::vector<std::string> first = CommandTexts(page.Pages()[0]);
    for (const char* command : {"110,770 150,810", "92,734 2400", "90,2407 ZC9　客厅", "2169,2407 └ 边窗11",
                                "90,5164 C2　走廊", "0,7229 门窗表　示例"}) {
        EXPECT_EQ(std::count(first.begin(), first.end(), command), 1) << command;
    }
    const std::vector<std::string> last = CommandTexts(page.Pages()[1]);
    EXPECT_EQ(std::count(last.begin(), last.end(), "0,820 " + list.total), 1);

    PageRecord higher(measure, 4 * (1899 + 180), 640 + 2 * 2757 + 900 + 450);
    PaintWindowList(higher, *store_, list, notice_);
    EXPECT_EQ(higher.Pages().size(), 1U);
}

}  // namespace
}  // namespace kalvane::test
