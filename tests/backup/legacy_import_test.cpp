#include "backup/legacy_import.h"

#include "drawing/cpictire.h"
#include "numeric/error.h"
#include "support/main_store.h"
#include "support/raw_store.h"

namespace kalvane::test {
namespace {

using LegacyImportTest = MainStoreTest;

constexpr const char* kOldTables[] = {"标注",     "窗板材", "窗配件",   "窗型钢",  "窗型材",   "工程",
                                      "工程门窗", "玻璃",   "材料厂家", "门窗",    "门窗厂家", "门窗系列",
                                      "配件",     "型钢",   "型材",     "型材系列"};

/// The layout of the tables with names of its own: columns go by position. A table of the new layout has
/// at least two columns, all of which take a text or a number.
std::string OldStore(const std::filesystem::path& drawing) {
    std::string sql;
    for (const std::string table : kOldTables) {
        const std::string columns = table == "门窗" ? "a INT, b INT, c TEXT, d TEXT" : "a INT, b INT";
        sql += "CREATE TABLE \"" + table + "\" (" + columns + ");";
        if (table != "门窗") sql += "INSERT INTO \"" + table + "\" VALUES (7, 8);";
    }
    sql += "INSERT INTO \"门窗\" VALUES (7, 5, '甲', '" + drawing.string() +
           "'), (7, 5, '乙', 'C:\\none.MC'),"
           "(7, 6, '丙''丙', NULL), (NULL, NULL, '丁', '" +
           drawing.string() + "');";
    return sql;
}

TEST_F(LegacyImportTest, TakesTablesAndDrawingsOver) {
    CPictire picture(notice_);
    picture.AddLine({{1, 2}, {3, 4.5F}});
    picture.SavePicture(folder_ / "one.MC");
    RunRaw(folder_ / "CL.MDB", OldStore(folder_ / "one.MC"));
    Insert({"图 (编号,图名) values(50,'旧')", "Line (Bn) values(50)", "arc (Bn) values(50)",
            "工程 (编号) values(50)", "工程合同 (HTBN) values(50)", "门窗 (编号) values(50)"});

    ImportLegacyDatabase(*store_, folder_ / "CL.MDB", notice_);
    EXPECT_EQ(notice_.shown, std::vector<std::string>{"报告|数据库已导入完毕。"});
    // Of two rows with one id both are kept. The quote breaks the statement of its drawing's index row.
    EXPECT_EQ(Rows("Select * from 门窗"), "7|5|甲|" + (folder_ / "one.MC").string() +
                                              "|1\n7|5|乙|C:\\none.MC|2\n7|6|丙'丙|~|3\n~|~|丁|" +
                                              (folder_ / "one.MC").string() + "|4");
    EXPECT_EQ(Rows("Select * from 图"), "1|甲\n2|乙\n4|丁");
    EXPECT_EQ(Rows("Select * from Line"), "1|2|3|4.5|1\n1|2|3|4.5|4");
    EXPECT_EQ(Rows("Select Bn from arc"), "50");
    EXPECT_EQ(Rows("Select HTBN from 工程合同"), "50");
    for (const std::string table : kOldTables) {
        if (table == "门窗") continue;
        const std::string row = Rows("Select * from " + table);
        EXPECT_TRUE(row.starts_with("7|8") && row.find('\n') == std::string::npos) << table << " " << row;
    }
}

TEST_F(LegacyImportTest, AFailingTableLeavesWhatCameBefore) {
    ImportLegacyDatabase(*store_, folder_ / "CL.MDB", notice_);
    EXPECT_EQ(notice_.shown, std::vector<std::string>{"提示|无法打开数据库！"});
    EXPECT_FALSE(std::filesystem::exists(folder_ / "CL.MDB"));

    RunRaw(folder_ / "CL.MDB", OldStore("x") + "UPDATE \"窗型钢\" SET b='八'");  // a number column
    Insert({"窗配件 (编号) values(50)", "窗型钢 (编号) values(50)", "窗型材 (编号) values(50)"});
    EXPECT_THROW(ImportLegacyDatabase(*store_, folder_ / "CL.MDB", notice_), StoreError);
    EXPECT_EQ(Rows("Select 编号 from 窗配件"), "8");
    EXPECT_EQ(Rows("Select 编号 from 窗型钢"), "");
    EXPECT_EQ(Rows("Select 编号 from 窗型材"), "50");
}

}  // namespace
}  // namespace kalvane::test
