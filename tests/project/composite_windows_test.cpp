// Composite windows: the rows under edit, what a save makes of them, their bill, and their copies.

#include "project/composite_windows.h"

#include "app/startup.h"
#include "formula/expansion.h"
#include "numeric/error.h"
#include "project/composite_check.h"
#include "project/copy_windows.h"
#include "support/killed_child.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

const std::string kMemberColumns = "Select MCBN,CBN,CMC,MC,MCZ,px,py,Count from 标注2";

class CompositeTest : public MainStoreTest {
  protected:
    /// A main drawing 9 with B and H, twice type 4 and once type 5 under edit; the first is counted twice.
    void PutUnderEdit() {
        StoreMemberRows(*store_, main_, {{{"B", "2400", "10", "20"}, {"H", "1500", "30", "40"}}}, "1");
        for (const CompositeMember& member : {left_, right_}) {
            AddMemberRows(*store_, member, {{{"B", "0", "1", "2"}}});
        }
        AddMemberRows(*store_, front_, {{{"B", "0", "3", "4"}}});
        StoreMemberRows(*store_, left_, {{{"B", "600", "1", "2"}}}, "2");
        StoreMemberRows(*store_, right_, {{{"B", "500", "1", "2"}}}, "1");
        StoreMemberRows(*store_, front_, {{{"B", "1200", "3", "4"}}}, "1");
    }
    std::string UnderEdit() { return Rows(kMemberColumns + " where MCBN=-1"); }

    const CompositeMember main_{"飘窗10", "-9"};
    const CompositeMember left_{"边窗11", "4"};
    const CompositeMember right_{"边窗12", "4"};
    const CompositeMember front_{"中窗13", "5"};
    WindowEntry window_{"ZC9", "客厅", "2400", "1500", "2", "无", "7", "-9", ""};
};

TEST_F(CompositeTest, NamesEndInTheNextNumber) {
    const struct {
        std::vector<CompositeMember> members;
        const char* next;
    } cases[] = {{{}, "10"},
                 {{{"窗10", "1"}}, "11"},
                 {{{"窗10", "1"}, {"门90", "2"}}, "91"},
                 {{{"窗3", "1"}}, "10"},    // "窗3" is no number
                 {{{"窗99", "1"}}, "100"},  // of which the next look sees "00"
                 {{{"窗100", "1"}, {"窗99", "1"}}, "100"},
                 {{{"窗100", "1"}}, "10"}};
    for (const auto& c : cases) EXPECT_EQ(NextMemberSuffix(c.members), c.next);
}

TEST_F(CompositeTest, RowsUnderEdit) {
    PutUnderEdit();
    EXPECT_EQ(LoadMemberCount(*store_, left_) + LoadMemberCount(*store_, right_), "21");
    EXPECT_EQ(LoadMemberCount(*store_, main_) + LoadMemberCount(*store_, {"无", "4"}), "11");
    StoreMemberRows(*store_, left_, {}, "5");
    EXPECT_EQ(LoadMemberCount(*store_, left_), "2") << "without labels nothing is stored";
    EXPECT_THROW(StoreMemberRows(*store_, right_, {{{"B", "500", "1", "2"}}}, "两"), StoreError);
    EXPECT_EQ(UnderEdit(),
              "-1|-9|飘窗10|B|2400|10|20|1\n-1|-9|飘窗10|H|1500|30|40|1\n"
              "-1|4|边窗11|B|600|1|2|2\n-1|5|中窗13|B|1200|3|4|1");
    AddMemberRows(*store_, right_, {{{"B", "0", "1", "2"}}});
    RemoveMemberRows(*store_, "4");  // both of the type
    RemoveMainRows(*store_);
    EXPECT_EQ(UnderEdit(), "-1|5|中窗13|B|1200|3|4|1");
}

TEST_F(CompositeTest, ASaveMovesTheMainLabelsAndAnEditWorksOnACopy) {
    Insert({"标注2 (MCBN,CBN,MC) values(1,3,'旧')", "标注 (Mcnum,MC) values(1,'旧')"});
    PutUnderEdit();
    SaveComposite(*store_, window_);
    EXPECT_EQ(window_.number, "1");
    const std::string members = "1|4|边窗11|B|600|1|2|2\n1|4|边窗12|B|500|1|2|1\n1|5|中窗13|B|1200|3|4|1";
    const std::string labels = "1|B|10|20|2400\n1|H|30|40|1500";
    const auto stored = [&] {
        EXPECT_EQ(Rows(kMemberColumns), members);
        EXPECT_EQ(Rows("Select Mcnum,MC,px,py,schar from 标注"), labels);
    };
    stored();
    EXPECT_EQ(Rows("Select 工程编号,门窗编号,编号,门窗名称,门窗类型,洞口宽,洞口高,樘数,说明 from 工程门窗"),
              "7|-9|1|ZC9|客厅|2400|1500|2|无");

    Insert({"标注2 (MCBN,CBN,MC,CMC) values(-1,3,'鬼','鬼10')"});  // of a killed program
    const std::vector<CompositeMember> opened = OpenComposite(*store_, window_);
    EXPECT_EQ(opened, (std::vector<CompositeMember>{{"ZC9", "-9"}, left_, right_, front_}));
    EXPECT_EQ(Rows("Select MCZ,Count from 标注2 where MCBN=-1 and CBN=-9"), "2400|~\n1500|~");
    RemoveMemberRows(*store_, "4");
    DropMembersUnderEdit(*store_);  // cancelled
    stored();

    OpenComposite(*store_, window_);
    StoreMemberRows(*store_, right_, {{{"B", "550", "1", "2"}}}, "3");
    SaveComposite(*store_, window_);
    EXPECT_EQ(Rows(kMemberColumns + " where CMC='边窗12'"), "1|4|边窗12|B|550|1|2|3");
    EXPECT_EQ(Rows("Select 编号 from 工程门窗"), "1") << "an edited window keeps its number";
}

TEST_F(CompositeTest, ARefusedSaveCanBeRepeated) {
    PutUnderEdit();
    const std::string before = UnderEdit();
    const struct {
        std::string WindowEntry::*field;
        const char* text;
        const char* row;  ///< of 工程门窗 afterwards
    } cases[] = {{&WindowEntry::note, "a'b", ""}, {&WindowEntry::count, "40000", ""}};
    for (const auto& c : cases) {
        WindowEntry bad = window_;
        bad.*c.field = c.text;
        EXPECT_THROW(SaveComposite(*store_, bad), StoreError);
        EXPECT_EQ(Rows("Select 编号 from 工程门窗"), c.row);
        EXPECT_EQ(UnderEdit(), before);
    }
    // Six characters do not fit a label of a window, which shows when everything else is written.
    StoreMemberRows(*store_, main_, {{{"B", "2400", "10", "20"}, {"框厚尺寸标注", "1", "1", "1"}}}, "1");
    EXPECT_THROW(SaveComposite(*store_, window_), StoreError);
    EXPECT_EQ(Rows("Select CMC from 标注2 where MCBN=-1 Group by CMC"), "中窗13\n边窗11\n边窗12\n飘窗10");
    StoreMemberRows(*store_, main_, {{{"B", "2400", "10", "20"}}}, "1");
    SaveComposite(*store_, window_);
    EXPECT_EQ(Rows("Select 编号 from 工程门窗") + Rows("Select MC from 标注") + UnderEdit(), "1B");
}

TEST_F(CompositeTest, FaultsOfMembersAreNamed) {
    PutUnderEdit();
    AddMemberRows(*store_, {"新窗14", "6"}, {{{"B", "0", "1", "2"}}});
    const std::vector<CompositeMember> members = {main_, left_, left_, {"空15", "6"}, {"新窗14", "6"}};
    std::string found;
    for (const auto& [member, fault] : FindMemberFaults(*store_, members)) {
        found += std::to_string(member) + fault + "|";
    }
    EXPECT_EQ(found,
              "1与另一项同名同型，两项会共用一份标注|2与另一项同名同型，两项会共用一份标注|"
              "3没有存储的标注，保存后这一项会消失|4标注都还是 0|");
}

TEST_F(CompositeTest, PiecesAreCountedByWindowAndMember) {
    Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(4,1,'框B','A','2.9','B-2*60')",
            "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,1,'铰链','K','2.5','个')"});
    PutUnderEdit();
    SaveComposite(*store_, window_);
    FormulaRows rows(*store_);
    std::string found;
    ExpandComposite(*store_, rows, {window_.number, window_.typeNumber, window_.count},
                    [&](const BillRow& row) { found += row.name + row.length + "x" + row.quantity + "|"; });
    // Two windows: 600-120=480, floor(2.9)=2 times 2*2; 500-120=380, 2 times 2*1; 2.5 is 2 (even) times 2*1.
    EXPECT_EQ(found, "框B480x8|框B380x4|铰链x4|");
}

TEST_F(CompositeTest, CopiesKeepSizesLabelsAndMembers) {
    AddProject(*store_, {"", "h", "甲", "东街", "乙方"});
    PutUnderEdit();
    window_.projectNumber = "1";
    SaveComposite(*store_, window_);
    AddWindow(*store_, {"C1", "厅", "900", "1200", "6", "无", "1", "3", ""}, {{{"B", "900", "5", "6"}}});
    Insert({"工程门窗 (工程编号,门窗编号,编号,门窗名称) values(1,0,3,'零')",
            "标注2 (MCBN,CBN,MC) values(3,4,'B')", "标注 (Mcnum,MC,schar) values(3,'H','1')"});
    store_->Execute("Update 标注2 set px=Null,Count=Null where CMC='中窗13'");

    EXPECT_EQ(DuplicateProject(*store_, ListProjects(*store_).front(), "甲二").number, "2");
    EXPECT_EQ(Rows("Select * from 工程 where 编号=2"), "2|h|甲二|东街|乙方");
    EXPECT_EQ(Rows("Select 门窗编号,编号,门窗名称,洞口宽,樘数,图名 from 工程门窗 where 工程编号=2"),
              "-9|4|ZC9|2400|2|~\n3|5|C1|900|6|~\n0|6|零|~|~|~");
    EXPECT_EQ(Rows("Select Mcnum,MC,px,py,schar from 标注 where Mcnum>3"),
              "4|B|10|20|2400\n4|H|30|40|1500\n5|B|5|6|900\n6|H|~|~|1");
    EXPECT_EQ(Rows(kMemberColumns + " where MCBN>3"),
              "4|4|边窗11|B|600|1|2|2\n4|4|边窗12|B|500|1|2|1\n4|5|中窗13|B|1200|~|4|~")
        << "a window of type 0 is copied as a plain one";

    std::vector<WindowEntry> chosen = ListWindows(*store_, "1");
    chosen = {chosen[1], chosen[1], chosen[1]};  // within its own project, and twice
    chosen[2].name = "C'";
    EXPECT_THROW(CopyWindows(*store_, chosen, "1"), StoreError);
    EXPECT_EQ(Rows("Select 门窗名称 from 工程门窗 where 编号>6"), "C1\nC1") << "what was copied stays";
}

TEST_F(CompositeTest, AKilledEditLeavesNoMembersToTheNextComposite) {
    store_.reset();
    RunAndBeKilled([this] {
        Connection store(file_, StoreKind::Main);
        AddMemberRows(store, left_, {{{"B", "0", "1", "2"}}});
        kill(getpid(), SIGKILL);
    });
    store_ = std::make_unique<Connection>(file_, StoreKind::Main);
    EXPECT_NE(UnderEdit(), "");
    store_.reset();

    AppState state;
    state.folder = folder_.Path();
    OpenMainStore(state, notice_);
    EXPECT_EQ(test::Rows(state.Main(), kMemberColumns), "");
}

}  // namespace
}  // namespace kalvane::test
