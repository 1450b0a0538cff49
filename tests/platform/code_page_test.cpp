#include "platform/code_page.h"

#include "numeric/error.h"

namespace kalvane::test {
namespace {

TEST(CodePage, TellsGbkFromUtf8) {
    EXPECT_EQ(ToGbk("B一国"), "B\xD2\xBB\xB9\xFA");
    const struct {
        const char* bytes;
        const char* text;
    } kTable[] = {
        {"B 12", "B 12"},
        {"\xD2\xBB", "一"},  // also a letter of two bytes in UTF-8
        {"\xB9\xFA\xD2\xBB", "国一"},
        {"国一", "国一"},
        {"\xEF\xBB\xBF"
         "h1",
         "h1"},
        {"\xFFh", "\xEF\xBF\xBDh"},
    };
    for (const auto& row : kTable) EXPECT_EQ(DecodeFileText(row.bytes), row.text) << row.text;
    EXPECT_THROW(ToGbk("框ไ"), FileError);
    EXPECT_EQ(CodePageWords("a国"), (std::vector<std::int16_t>{97, static_cast<std::int16_t>(0xB9FA)}));
}

}  // namespace
}  // namespace kalvane::test
