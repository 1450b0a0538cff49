#include "drawing/dxf_import.h"

#include "drawing/recorders.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "support/refusal.h"
#include "support/temp_folder.h"

namespace kalvane::test {
namespace {

constexpr const char* kFull = "#Error|数组超出范围,请与程序员联系";

class DxfImportTest : public testing::Test {
  protected:
    DxfSummary Import(const std::string& bytes) {
        WriteFileAtomically(file_, bytes);
        return ImportDxf(file_, picture_);
    }

    /// An entity as programs write it: padded codes, CR LF.
    static std::string Entity(const char* kind, std::initializer_list<std::pair<int, const char*>> groups) {
        std::string text = std::string("  0\r\n") + kind + "\r\n";
        for (const auto& [code, value] : groups) {
            text += (code < 10 ? "  " : " ") + std::to_string(code) + "\r\n" + value + "\r\n";
        }
        return text;
    }
    static std::string Entities(const std::string& entities) {
        return "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n" + entities + "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
    }
    static std::string Lines(int count) {
        std::string text;
        while (count-- > 0) text += Entity("LINE", {{11, "1"}, {21, "2"}});
        return Entities(text);
    }

    TempFolder folder_;
    std::filesystem::path file_ = folder_ / "图.dxf";
    RecordingNotice notice_;
    CPictire picture_{notice_};
};

TEST_F(DxfImportTest, TakesThreeKindsAndTellsWhatItPassedOver) {
    picture_.AddArc({});  // replaced with all else
    const std::string line =
        Entity("LINE", {{8, "0"}, {10, "1"}, {20, "2.5"}, {30, "0"}, {11, "-3"}, {21, "4e1"}});
    const std::string box = "0\nLWPOLYLINE\n90\n4\n10\n1\n20\n2\n10\n3\n20\n4\n10\n5\n20\n6\n10\n7\n20\n8\n";
    const std::string mark =
        "0\nDIMENSION\n10\n5\n20\n6\n11\n7\n21\n8\n1\n B1 \n13\n1\n23\n2\n14\n3\n24\n4\n1\nlate\n";
    const std::string others =
        "0\nCIRCLE\n10\n9\n20\n9\n0\nTEXT\n1\nh\n0\nCIRCLE\n0\nPOLYLINE\n0\nVERTEX\n0\nSEQEND\n";
    // Entities in a block stand before the section that counts, objects behind it.
    const DxfSummary summary = Import(line + Entities(line + box + mark + others) + Entity("DICTIONARY", {}));
    EXPECT_EQ(Describe(picture_), "Line 1,2.5 -3,40; Rec 1,2 5,6; Dim 1,2 3,4 5,6; String 7,8 B1");
    EXPECT_EQ(DxfPrompt(summary),
              "导入直线 1、矩形 1、标注 1、文字 1；略过 4 个图元：CIRCLE 2、POLYLINE 1、TEXT 1");
}

TEST_F(DxfImportTest, ScannerRules) {
    const std::string triangle = "0\nLWPOLYLINE\n10\n1\n20\n2\n10\n3\n20\n4\n10\n5\n20\n6\n";
    const std::string line = Entity("LINE", {{10, "7"}, {20, "8"}, {11, "9"}, {21, "10"}});
    const struct {
        std::string text;
        const char* drawing;
        const char* passedOver = "没有略过的图元";  // behind the counts
    } kCases[] = {
        {line, ""},  // no ENTITIES
        {"ENTITIES\nLINE\n21\n4\n", "Line 0,0 0,4"},
        // A line may open with the word as the name of a layer, and a comma ends a token.
        {"ENTITIES\n8\nLINE\n10,1,20,2\n11,3\r21,4\n", "Line 1,2 3,4"},
        {Entities(triangle + line + line), "Line 7,8 9,10; Rec 1,2 5,6", "略过 1 个图元：LINE 1"},
        {Entities(Entity("DIMENSION", {{14, "1"}, {24, "2"}, {13, "3"}, {1, "late"}})),
         "Dim 0,0 1,2 0,0; String 0,0 "},
        {Entities(Entity("DIMENSION", {{1, ""}, {24, "2"}})), "Dim 0,0 0,2 0,0; String 0,0 "},
        // The word counts to the end; the file ends within the third.
        {Entities(line) + line + "  0\r\nLINE\r\n 10\r\n", "Line 7,8 9,10; Line 7,8 9,10"},
    };
    for (const auto& c : kCases) {
        const std::string prompt = DxfPrompt(Import(c.text));
        EXPECT_EQ(Describe(picture_), c.drawing) << c.text;
        EXPECT_NE(prompt.find(c.passedOver), std::string::npos) << prompt;
    }
}

TEST_F(DxfImportTest, TextsArriveReadable) {
    const std::string mark = Entities(Entity("DIMENSION", {{1, "框厚KH1"}, {24, "0"}}));
    for (const std::string& bytes : {mark, ToGbk(mark), "\xEF\xBB\xBF" + mark}) {
        Import(bytes);
        EXPECT_EQ(Describe(picture_), "Dim 0,0 0,0 0,0; String 0,0 框厚KH1");
    }
}

TEST_F(DxfImportTest, EachLineTooManyIsToldButNotAHundredThousand) {
    EXPECT_EQ(DxfPrompt(Import(Lines(400))), "导入直线 361、矩形 0、标注 0、文字 0；略过 39 个图元：LINE 39");
    EXPECT_EQ(notice_.shown, std::vector<std::string>(39, kFull));
    notice_.shown.clear();
    EXPECT_EQ(Import(Lines(100000)).PassedOverCount(), 99639);
    ASSERT_EQ(notice_.shown.size(), 51U);
    EXPECT_EQ(notice_.shown[49], kFull);
    EXPECT_EQ(notice_.shown[50], "#Error|后面还有超出范围的图元，不再逐个提示。");
    picture_.AddLine({});  // and by hand it is told again
    EXPECT_EQ(notice_.shown.back(), kFull);
}

TEST_F(DxfImportTest, BadFiles) {
    picture_.AddLine({{1, 1}, {2, 2}});
    EXPECT_THROW(ImportDxf(folder_ / "none.dxf", picture_), FileError);
    EXPECT_THROW(ImportDxf(folder_.Path(), picture_), FileError);
    EXPECT_THROW(ImportDxf("/dev/zero", picture_), FileError);
    EXPECT_THROW(Import("ENTITIES\n" + std::string(1 << 20, 'x')), FileError);  // one line of a megabyte
    EXPECT_EQ(Describe(picture_), "Line 1,1 2,2");
    const std::string text = Entities(Entity("LINE", {{21, "3"}}) + Entity("LINE", {{10, "一"}}));
    EXPECT_EQ(Refusal([&] { Import(text); }), "图形文件第 12 行的“一”不是数字。");
    EXPECT_EQ(Describe(picture_), "Line 0,0 0,3");
}

}  // namespace
}  // namespace kalvane::test
