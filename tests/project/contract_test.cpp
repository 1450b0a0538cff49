// Contracts: the row that a save replaces, what it is headed by, and the lines that are printed.

#include "project/contract.h"

#include "numeric/error.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class ContractTest : public MainStoreTest {
  protected:
    /// "1a" to "13a".
    static ContractTexts Texts(const std::string& end) {
        ContractTexts texts;
        for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = std::to_string(i + 1) + end;
        return texts;
    }

    SettingsStore settings_{folder_ / "settings"};
};

TEST_F(ContractTest, TheSettingsHeadItAndFillTheSupplier) {
    EXPECT_EQ(ContractHeading(settings_), "塑钢公司订货单");
    ContractTexts texts = Texts("");
    FillSupplier(settings_, texts);
    EXPECT_EQ(texts[0] + texts[2] + texts[4], "") << "empty in place of the default of the heading";
    settings_.Save("Tesmar", "KALVANE", "DW", "云岭");
    settings_.Save("Tesmar", "KALVANE", "ADDRESS", "路9号");
    settings_.Save("Tesmar", "KALVANE", "TEL", "0555");
    FillSupplier(settings_, texts);
    EXPECT_EQ(ContractHeading(settings_), "云岭订货单");
    EXPECT_EQ(texts[0] + texts[1] + texts[2] + texts[3] + texts[4] + texts[5], "云岭2路9号405556");
}

TEST_F(ContractTest, ASaveReplacesTheRow) {
    Insert({"工程合同 (T1,HTBN) values('别家',8)"});
    EXPECT_FALSE(LoadContract(*store_, "7"));
    for (const char* end : {"a", "b"}) SaveContract(*store_, "7", Texts(end), "头");
    EXPECT_EQ(Rows("Select * from 工程合同 where HTBN=7"), "1b|2b|3b|4b|5b|6b|7b|8b|9b|10b|11b|12b|13b|头|7");
    EXPECT_EQ(LoadContract(*store_, "7"), Texts("b"));
    EXPECT_EQ(Rows("Select T1 from 工程合同 where HTBN=8"), "别家");
}

TEST_F(ContractTest, ARefusedSaveSaysThatTheOldRowIsGone) {
    const struct {
        std::size_t text;
        std::string value;
        const char* column;
    } cases[] = {{3, "路'1号", ""}, {1, std::string(51, 'x'), "T2"}};
    for (const auto& c : cases) {
        SaveContract(*store_, "7", Texts("a"), "头");
        ContractTexts texts = Texts("b");
        texts[c.text] = c.value;
        std::string column;
        try {
            SaveContract(*store_, "7", texts, "头");
            ADD_FAILURE() << c.value;
        } catch (const StoreError& refusal) {
            EXPECT_NE(std::string(refusal.what()).find("现在没有存储的合同"), std::string::npos);
            const auto* meant = dynamic_cast<const ColumnError*>(&refusal);
            EXPECT_EQ(meant == nullptr ? "" : meant->Column(), c.column);
        }
        EXPECT_EQ(Rows("Select T1 from 工程合同"), "");
    }
}

TEST_F(ContractTest, TheReportHasItsOwnCaptionsAndTheSavedRow) {
    SaveContract(*store_, "7", Texts("#"), "云岭订货单");
    const Report report = ContractReport(*store_, "7");
    EXPECT_EQ(report.title, "云岭订货单");
    std::string lines;
    for (const ReportLine& line : report.closing) {
        for (const std::string& text : line) lines += text + "|";
    }
    EXPECT_EQ(lines,
              "供方：1#|需方：2#|地址：3#|地址：4#|电话：5#|电话：6#|1.塑钢品牌、产地及系列：7#|"
              "2.五金件品牌及产地：8#|3.纱窗玻璃颜色：9#|"
              "4.质量要求及技术标准，供方对质量负现的条件：10#|5.数量及单价：11#|6.结算方式及期限：12#|"
              "7.其它事项：13#|经办签章：|需方签章：|");
    const Report unsaved = ContractReport(*store_, "8");
    EXPECT_EQ(unsaved.title, "");
    EXPECT_EQ(unsaved.closing.front(), ReportLine{"供方："});
}

}  // namespace
}  // namespace kalvane::test
