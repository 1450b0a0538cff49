#include "session/optimise_settings.h"

#include "numeric/error.h"
#include "optimise/option_form.h"
#include "platform/settings_store.h"
#include "support/temp_folder.h"

namespace kalvane::test {

/// All numbers of the settings as one text, for short tables.
std::string TextOf(const OptimiseSettings& settings) {
    std::string text;
    for (const std::string& field : OptionTextsOf(settings)) text += field + " ";
    return text;
}

TEST(OptimiseSettingsTest, ReadsEachKeyByItsOwnRule) {
    const struct {
        const char* key;
        const char* text;
        const char* expected;  // empty: refused
    } rows[] = {{"CLC", " 6000.9 ", "6000 0 0 0 1 20 "},   {"CLC", "32768", ""},
                {"CLC", "-0.5", "-1 0 0 0 1 20 "},         {"LTC", "10.99", "0 10 0 0 1 20 "},
                {"COUNT", "50000.7", "0 0 0 50000 1 20 "}, {"YHBL", "0.95abc", "0 0 0 0 0.95 20 "},
                {"YHBL", "all", "0 0 0 0 0 20 "},          {"NODES", "many", ""},
                {"NODES", "41.5", "0 0 0 0 1 42 "}};
    for (const auto& row : rows) {
        const TempFolder folder;
        SettingsStore store(folder / "settings");
        store.Save("Tesmar", "YHOPTION", row.key, row.text);
        std::string read;
        try {
            read = TextOf(ReadOptimiseSettings(store));
        } catch (const NumericError&) {
        }
        EXPECT_EQ(read, row.expected) << row.key << " " << row.text;
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
