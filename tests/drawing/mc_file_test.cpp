#include "drawing/mc_file.h"

#include "drawing/recorders.h"
#include "platform/files.h"
#include "support/refusal.h"
#include "support/temp_folder.h"

namespace kalvane::test {
namespace {

class McFileTest : public testing::Test {
  protected:
    TempFolder folder_;
    std::filesystem::path file_ = folder_ / "窗.MC";
    RecordingNotice notice_;
    CPictire picture_{notice_};
};

TEST_F(McFileTest, WritesSectionsValueByLineInGbkWithoutArcs) {
    FillWithEachKind(picture_);
    picture_.SavePicture(file_);
    EXPECT_EQ(ReadFile(file_),
              "Line\r\n 1266 \r\n 0 \r\n 0.5 \r\n-3 \r\n"
              "Rec\r\n 10 \r\n 20 \r\n 30 \r\n 40 \r\n"
              "Dir\r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n"
              "Dim\r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n 6 \r\n"
              "String\r\n 7 \r\n 8 \r\n\xBF\xF2\xBA\xF1 KH1\r\n");

    CPictire read(notice_);
    read.AddLine({{5, 5}, {6, 6}});         // replaced
    read.AddArc({{1, 1}, {2, 2}, {3, 1}});  // stays
    read.Open_File(file_);
    EXPECT_EQ(Describe(read),
              "Line 1266,0 0.5,-3; Rec 10,20 30,40; Dir 1,2 3,4; Dim 1,2 3,4 5,6; String 7,8 框厚 KH1; "
              "Arc 1,1 2,2 3,1");
}

TEST_F(McFileTest, ReaderRules) {
    const struct {
        const char* text;
        const char* read;
        const char* refused = nullptr;  // line and token that stop the load
    } kCases[] = {
        {"1\r\n2\r\n3\r\n4", "Line 1,2 3,4"},  // lines come first, no end of line at the end
        {"Line\n1\n2\n3\n4\n5\n6\n7\n8\n", "Line 1,2 3,4; Line 5,6 7,8"},
        {"Dir\n 1, 2 ,-3 ,4.5e1\n", "Dir 1,2 -3,45"},
        {"Line\n1\n2\n3\nRec\n5\n6\n7\n8\n9\n", "Rec 5,6 7,8"},  // two partial records
        {"String\n1\n2\n\n3\n4\n  a b  \n", "String 1,2 ; String 3,4 a b"},
        {"String\n1\n2\nRec\n3\n4\n5\n6\n", "Rec 3,4 5,6"},  // a label that is a keyword
        {"String\n1\n2\nrec\n3\n4\nLINE\n", "String 1,2 rec; String 3,4 LINE"},
        {"String\n1\n2\na,3\n4\nb\n", "String 1,2 a; String 3,4 b"},  // the rest is the next x
        {"Circle\nRec\n1\nCircle\n2\n3\n4\nString\n5\n6\nCircle\nB\n", "Rec 1,2 3,4; String 5,6 B"},
        {"1\n2\n3\n4\n5\nx\n7\n8\n", "Line 1,2 3,4", "第 6 行的“x”"},
        {"1\n2\n3\n4\nArc\n1\n2\n3\n4\n5\n6\n", "Line 1,2 3,4", "第 5 行的“Arc”"},
        {"String\n1\n2\na,b\n", "String 1,2 a", "第 4 行的“b”"},
        {"1\n1e39\n", "", ""},  // beyond a 32-bit float
    };
    for (const auto& c : kCases) {
        picture_.ClearData();
        const std::string refusal = Refusal([&] { ReadMcText(c.text, picture_); });
        EXPECT_EQ(refusal.empty(), c.refused == nullptr) << c.text;
        EXPECT_NE(refusal.find(c.refused == nullptr ? "" : c.refused), std::string::npos) << refusal;
        EXPECT_EQ(Describe(picture_), c.read) << c.text;
    }
}

}  // namespace
}  // namespace kalvane::test
