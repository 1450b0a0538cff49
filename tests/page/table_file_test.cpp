#include "page/table_file.h"

#include "platform/files.h"
#include "support/temp_folder.h"
#include "support/xlsx_reader.h"

namespace kalvane::test {
namespace {

FileTable AreaTable() {
    FileTable table;
    table.title = "工程面积统计表";
    table.columns = {{"名称"}, {"宽度", true, 8}, {""}};
    table.rows = {{"007", "1500", "=1"}, {"C2"}, {}};
    return table;
}

TEST(TableFile, TextHasItsTabsWhereTheyAreWanted) {
    FileTable list;
    list.title = "厂家";
    list.above = {{}, {"日期", "2024-05-01"}};
    list.columns = {{"名称"}};
    list.rows = {{"甲"}};
    list.below = {{"", "", "签字"}};
    EXPECT_EQ(TableText({AreaTable(), list}, TabPlace::BehindEachCell),
              "工程面积统计表\r\n名称\t宽度\t\t\r\n007\t1500\t=1\t\r\nC2\t\r\n\r\n"
              "厂家\r\n\r\n日期\t2024-05-01\r\n名称\t\r\n甲\t\r\n\t\t签字\r\n");
    const TempFolder folder;
    SaveTableText({list}, TabPlace::BeforeEachCell, folder / "a.txt");
    EXPECT_EQ(ReadFile(folder / "a.txt"),
              "\xEF\xBB\xBF厂家\r\n\r\n日期\t2024-05-01\r\n\t名称\r\n\t甲\r\n\t\t签字\r\n");
}

TEST(TableFile, WorkbookKeepsTextsAndIsReadyToBePrinted) {
    FileTable list;
    list.title = "厂家";
    list.columns = {{"名称"}};
    const TempFolder folder;
    TableWorkbook({AreaTable(), list}).Save(folder / "a.xlsx");
    const XlsxReader reader(folder / "a.xlsx");
    const XlsxSheet area = reader.Sheet(1);
    EXPECT_EQ(area.cells,
              "A1=工程面积统计表|B1=|C1=\n"
              "A2=名称|B2=宽度|C2=\n"
              "A3=007|B3=#1500|C3==1\n"
              "A4=C2|B4=|C4=\n"
              "A5=|B5=|C5=\n");
    EXPECT_EQ(area.bordered, "A2 B2 C2 A3 B3 C3 A4 B4 C4 A5 B5 C5 ");
    EXPECT_EQ(area.merges, "A1:C1 ");
    EXPECT_EQ(area.page, "9 1 x 0 Sheet1!$2:$2 2");  // 9 is A4
    const XlsxSheet names = reader.Sheet(2);         // a title over a single column is no merged cell
    EXPECT_EQ(names.cells, "A1=厂家\nA2=名称\n");
    EXPECT_EQ(names.centred, "A1 ");
    EXPECT_EQ(names.page, "9 1 x 0 Sheet2!$2:$2 2");
}

}  // namespace
}  // namespace kalvane::test
