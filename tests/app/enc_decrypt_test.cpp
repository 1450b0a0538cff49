#include "app/enc_decrypt.h"

#include <gtest/gtest.h>

namespace kalvane {
namespace {

struct Case {
    const char* given;
    const char* expected;
};

const clsEncDecrypt kScrambler;

// Digits worked by hand. "ab" is 0061 0062: the new left word takes digits 2 and 4 of both in turn, 0 0 1 2,
// the new right word digits 1 and 3, 0 0 6 6. In "abc" the 0066 goes on to mix with 0063: 0063 and 0066.
TEST(EncDecrypt, ScramblesByMixingNeighbours) {
    const Case cases[] = {
        {"", ""},
        {"a", ""},
        {"中", ""},
        {"ab", "00120066"},
        {"abc", "001200630066"},
        {"中文", "6E04DCDC"},  // D6D0 CEC4
        {"a中", "06100D6D"},   // 0061 D6D0
    };
    for (const Case& c : cases) EXPECT_EQ(kScrambler.EncBuf(c.given), c.expected) << c.given;
}

// The key is AC1F.
TEST(EncDecrypt, TheKeyIsAppliedAfterMixing) {
    EXPECT_EQ(kScrambler.KeyEncBuf("ab", kPasswordKey), "AC0DAC79");
    EXPECT_EQ(kScrambler.KeyEncBuf("a", kPasswordKey), "");
    EXPECT_EQ(kScrambler.KeyEncBuf("ab", 0), kScrambler.EncBuf("ab"));
}

TEST(EncDecrypt, ReadsScrambledTexts) {
    // 0012 0066 mixes to 0026 0016: the pass does not undo itself.
    EXPECT_EQ(kScrambler.DecBuf("00120066"), "&\x16");
    // AA55 CCDE mixes to AC5E AC5D, and the key makes 0041 0042 of them.
    EXPECT_EQ(kScrambler.KeyDecBuf("AA55CCDE", kPasswordKey), "AB");
    EXPECT_EQ(kScrambler.CmprEncBuf("00610062D6D0"), "ab中");
}

TEST(EncDecrypt, RefusesWhatCannotBeScrambledText) {
    for (const char* text : {"", "0061", "0061006", "006100620"}) {
        EXPECT_EQ(kScrambler.DecBuf(text), "") << text;
        EXPECT_EQ(kScrambler.KeyDecBuf(text, kPasswordKey), "") << text;
        EXPECT_EQ(kScrambler.CmprEncBuf(text), "") << text;
    }
}

}  // namespace
}  // namespace kalvane
