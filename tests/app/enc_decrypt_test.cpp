#include "app/enc_decrypt.h"

namespace kalvane::test {
namespace {

const clsEncDecrypt kScrambler;

// Digits worked by hand. "ab" is 0061 0062: the new left word takes digits 2 and 4 of both in turn, 0 0 1 2,
// the new right word digits 1 and 3, 0 0 6 6. In "abc" the 0066 goes on to mix with 0063: 0063 and 0066.
TEST(EncDecrypt, ScramblesByMixingNeighbours) {
    const char* const cases[][2] = {
        {"", ""},
        {"a", ""},
        {"中", ""},
        {"ab", "00120066"},
        {"abc", "001200630066"},
        {"中文", "6E04DCDC"},  // D6D0 CEC4
        {"a中", "06100D6D"},   // 0061 D6D0
    };
    for (const auto& [given, expected] : cases) EXPECT_EQ(kScrambler.EncBuf(given), expected) << given;
    // The key, AC1F, is applied after the mixing.
    EXPECT_EQ(kScrambler.KeyEncBuf("ab", kPasswordKey), "AC0DAC79");
    EXPECT_EQ(kScrambler.KeyEncBuf("a", kPasswordKey), "");
}

TEST(EncDecrypt, ReadsScrambledTextsAndNothingElse) {
    // 0012 0066 mixes to 0026 0016: the pass does not undo itself.
    EXPECT_EQ(kScrambler.DecBuf("00120066"), "&\x16");
    // AA55 CCDE mixes to AC5E AC5D, and the key makes 0041 0042 of them.
    EXPECT_EQ(kScrambler.KeyDecBuf("AA55CCDE", kPasswordKey), "AB");
    EXPECT_EQ(kScrambler.CmprEncBuf("00610062D6D0"), "ab中");
    for (const char* text : {"", "0061", "0061006", "006100620"}) {
        EXPECT_EQ(kScrambler.DecBuf(text), "") << text;
        EXPECT_EQ(kScrambler.KeyDecBuf(text, kPasswordKey), "") << text;
        EXPECT_EQ(kScrambler.CmprEncBuf(text), "") << text;
    }
}

}  // namespace
}  // namespace kalvane::test
