#include "drawing/drawing_library.h"

#include "drawing/recorders.h"
#include "numeric/error.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class DrawingLibraryTest : public MainStoreTest {
  protected:
    std::string Stored(const char* number) {
        CPictire read(notice_);
        read.OpenFileEX(*store_, number);
        return Describe(read);
    }

    CPictire picture_{notice_};
};

TEST_F(DrawingLibraryTest, ADeletedDrawingLeavesItsArcsToTheNextOfItsNumber) {
    FillWithEachKind(picture_);
    for (const char* number : {"7", "8"}) SaveNewDrawing(*store_, number, "甲", picture_);
    picture_.SaveFileEx(*store_, "7", "");  // replaces its rows
    DeleteDrawing(*store_, "8");
    EXPECT_EQ(Stored("8"), "Arc 9,8 7,6 5,4");
    EXPECT_EQ(Stored("7"), kEachKind);
    EXPECT_EQ(NextDrawingNumber(*store_), "8");
    CPictire(notice_).SaveFileEx(*store_, "8", "");
    EXPECT_EQ(Stored("8"), "");
}

TEST_F(DrawingLibraryTest, AQuoteInATextFailsWithTheRowsBeforeItKept) {
    FillWithEachKind(picture_);
    picture_.SaveFileEx(*store_, "7", "");
    picture_.AddString({{4, 4}, "B'"});
    EXPECT_THROW(picture_.SaveFileEx(*store_, "7", ""), StoreError);
    store_ = std::make_unique<Connection>(file_, StoreKind::Main);
    EXPECT_EQ(Stored("7"), std::string(kEachKind).substr(0, std::string(kEachKind).find("; Arc")));
}

TEST_F(DrawingLibraryTest, AreNumberedAndListed) {
    EXPECT_EQ(NextDrawingNumber(*store_), "1");
    SaveNewDrawing(*store_, "41", "甲", picture_);
    Insert({"图 (编号) values(5)"});
    EXPECT_EQ(NextDrawingNumber(*store_), "42");
    std::string listed;
    for (const DrawingEntry& entry : ListDrawings(*store_)) listed += entry.number + entry.name + ";";
    EXPECT_EQ(listed, "41甲;5;");
    EXPECT_THROW(SaveNewDrawing(*store_, "甲", "乙", picture_), StoreError);

    // Reading stops at a coordinate that is Null.
    Insert({"Line (x1,y1,x2,y2,Bn) values(1,2,3,4,7)", "Line (x1,y1,x2,Bn) values(1,2,3,7)"});
    EXPECT_THROW(picture_.OpenFileEX(*store_, "7"), NumericError);
    EXPECT_EQ(Describe(picture_), "Line 1,2 3,4");
}

}  // namespace
}  // namespace kalvane::test
