#include "session/optimise_settings.h"

#include "numeric/error.h"
#include "optimise/option_form.h"
#include "platform/settings_store.h"
#include "support/recording_notice.h"
#include "support/temp_folder.h"

namespace kalvane::test {

namespace {

/// All numbers of the settings as one text, for short tables.
std::string TextOf(const OptimiseSettings& settings) {
    std::string text;
    for (const std::string& field : OptionTextsOf(settings)) text += field + " ";
    return text;
}

}  // namespace

TEST(OptimiseSettingsTest, ReadsEachKeyByItsOwnRuleOrItsDefault) {
    const struct {
        const char* key;
        const char* text;
        const char* expected;
        const char* complaint = "";
    } rows[] = {
        {"CLC", " 6000.9 ", "6000 10 0 0 1 20 "},
        {"CLC", "32768", "0 10 0 0 1 20 ", "材料长度（CLC）的值“32768”超出范围，改用 0。\n"},
        {"CLC", "-0.5", "-1 10 0 0 1 20 "},
        {"CKK", "5mm", "0 10 0 0 1 20 ", "切口宽度（CKK）的值“5mm”不是数字，改用 0。\n"},
        {"COUNT", "50000.7", "0 10 0 50000 1 20 "},
        {"YHBL", "0.95abc", "0 10 0 0 0.95 20 "},
        {"YHBL", "all", "0 10 0 0 0 20 "},
        {"NODES", "99999", "0 10 0 0 1 20 ", "控制优化结点数（NODES）的值“99999”超出范围，改用 20。\n"},
        {"NODES", "41.5", "0 10 0 0 1 42 "}};
    for (const auto& row : rows) {
        const TempFolder folder;
        SettingsStore store(folder / "settings");
        store.Save("Tesmar", "YHOPTION", "LTC", "10.99");
        store.Save("Tesmar", "YHOPTION", row.key, row.text);
        RecordingNotice notice;
        EXPECT_EQ(TextOf(ReadOptimiseSettings(store, notice)), row.expected) << row.key << " " << row.text;
        const std::string shown = notice.shown.empty() ? "" : notice.shown[0];
        EXPECT_EQ(shown.empty(), *row.complaint == '\0') << shown;
        EXPECT_NE(shown.find(row.complaint), std::string::npos) << shown;
    }
}

TEST(OptionFormTest, AcceptsOrNamesTheField) {
    const struct {
        OptionTexts texts;  // CLC, LTC, CKK, COUNT, YHBL, NODES
        const char* expected;
    } rows[] = {
        {{"6000", "10", "5", "50000", "1", "20"}, "6000 10 5 50000 1 20 "},
        {{"6000.5", "10.5", "5.9", "9.5", "0.9", "60"}, "6000 10 5 10 0.9 60 "},  // ties to even, CKK down
        {{"6001.5", "11.5", "-0.1", "8.5", "0.9", "x"}, "6002 12 -1 8 0.9 0 "},
        {{"6000", "10", "5", "50001", "1", "20"}, "3 数据值不能大于50000"},
        {{"", "x", "5", "50001", "1", "20"}, "0 数据不合法"},
        {{"6000", "x", "y", "50001", "1", "20"}, "1 数据不合法"},
        {{"6000", "1", "5mm", "50001", "1", "20"}, "2 数据不合法"},
        {{"6000", "1", "5", "50001", "", "20"}, "4 数据不合法"},
        {{"40000", "1", "5", "0", "1", "20"}, "0 数据不合法"},  // beyond 16 bits
        {{"6000", "1", "5", "0", "1", "32768"}, "5 数据不合法"},
    };
    for (const auto& row : rows) {
        const auto result = AcceptOptions(row.texts);
        const auto* failure = std::get_if<OptionFailure>(&result);
        EXPECT_EQ(failure == nullptr
                      ? TextOf(std::get<OptimiseSettings>(result))
                      : std::to_string(static_cast<int>(failure->field)) + " " + failure->message,
                  row.expected);
    }
    OptimiseSettings settings{6000, 10, 5, 50000, 0.95F, "", 60};
    EXPECT_EQ(settings.PieceAllowance(), 20);
    settings.CKK = 16384;
    EXPECT_THROW(settings.PieceAllowance(), NumericError);
}

}  // namespace kalvane::test
