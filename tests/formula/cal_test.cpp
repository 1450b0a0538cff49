#include "formula/cal.h"

#include <random>

#include "formula/labels.h"
#include "formula/literal_cal.h"
#include "numeric/error.h"

namespace kalvane::test {
namespace {

TEST(CStackAndCQueue, LoseTheEntryTooManyAndTellOfIt) {
    CStack stack;
    EXPECT_EQ(stack.Top() + stack.Pop(), "NULLNULL");
    for (int i = 0; i < 103; ++i) stack.Push(std::to_string(i));
    EXPECT_TRUE(stack.IsFull());
    for (int i = 100; i >= 0; --i) ASSERT_EQ(stack.Pop(), std::to_string(i));
    EXPECT_EQ(stack.Pop(), "NULL");

    CQueue queue;
    EXPECT_EQ(queue.DeQueue(), "");
    EXPECT_EQ(queue.GetErrorMessage(), "Empty");
    for (int round = 0; round < 2; ++round) {  // the second time around the ring
        for (int i = 0; i < 100; ++i) queue.EnQueue(std::to_string(i));
        queue.EnQueue("lost");
        EXPECT_EQ(queue.GetErrorMessage(), "Overflow");
        // The free slot is the one behind the last entry: new at first, then the second round's slot 99.
        EXPECT_EQ(queue.ShowEnd(), round == 0 ? "" : "99");
        EXPECT_EQ(queue.GetErrorMessage(), "None");
        for (int i = 0; i < 100; ++i) ASSERT_EQ(queue.DeQueue(), std::to_string(i));
    }
}

TEST(Cal, EvaluatesByItsRules) {
    const struct {
        const char* formula;
        float value;
    } kTable[] = {
        {"1200/6-41", 159},
        {"2*SQR(16)+1", 9},
        {"", 0},
        {".5+.25", 0.75F},
        {"3*(-2)", 0},
        {"1+-200", -199},
        {"5+1/0", 5},
        {"SQR(-4)+1", 1},
        {"SIN(30)", 0.49977F},
        {"ATN(1)", 45.02282F},
        {"(1500-2*(60-10)+20+30)/2-30+12", 707},
        {"2(3+4)", 7},           // no implied product
        {"(2+3", 5},             // the spare parenthesis stays below
        {"1.2.3+1", 1},          // the malformed number is dropped
        {"1 2+1", 13},           // blanks vanish inside a number
        {"B", 1},                // cosine of an absent operand
        {"1)+(2", 2},            // ends: the opening one comes before the last closing one
        {"sqr 16", 0},           // a name without its parenthesis drops everything
        {"xSQRx(16)+1", 5},      // a name inside a word; everything up to the parenthesis goes with it
        {"1/3*3-1", -0x9P-53F},  // 0.999999999999999, nine steps of a 64-bit float below 1
        {"0.00000000000000000001*5", 5E-20F},
        {"100000000000000000000*10-1", 1e21F},
        {"9)*2(", 2},       // either parenthesis finds its counterpart outside the text
        {"1\xE5\x8A 2", 2}  // half a character is a separator too
    };
    for (const auto& row : kTable) {
        EXPECT_FLOAT_EQ(Cal().CalExpress(row.formula), row.value) << row.formula;
    }
    const std::string nines(400, '9');
    EXPECT_EQ(Cal().CalExpress(nines + "+1"), 0);                         // no number holds such an operand
    EXPECT_EQ(Cal().CalExpress("7-." + std::string(400, '0') + "1"), 7);  // too small to be anything
    EXPECT_EQ(Cal().CalExpress("1" + std::string(38, '0') + "*10"),
              0);  // beyond a 32-bit float: the value before stands
    EXPECT_GT(std::fabs(Cal().CalExpress("TAN(90)")), 1000);
    EXPECT_NEAR(Cal().CalExpress("SIN(180)"), 0.00159, 0.00001);
}

TEST(Cal, StopsWhereItWouldNeverEnd) {
    for (const char* formula : {"1)", ")", "(1+2))", "SQR(4))"}) {
        EXPECT_THROW(Cal().CalExpress(formula), FormulaError) << formula;
    }
    // Of 110 parentheses 100 fit on the stack beside the first one: the others find nothing to close.
    EXPECT_THROW(Cal().CalExpress(std::string(110, '(') + "1" + std::string(110, ')')), FormulaError);
    // What was read of such a formula does not reach the next one.
    Cal after;
    EXPECT_THROW(after.CalExpress("1+2+3)"), FormulaError);
    EXPECT_EQ(after.CalExpress("+4"), 4);
    std::string chinese;
    for (int i = 0; i < 32767; ++i) chinese += "框";
    EXPECT_EQ(Cal().CalExpress(chinese), 0);
    EXPECT_THROW(Cal().CalExpress(chinese + "框"), FormulaError);
    Cal cal;
    EXPECT_THROW(cal.Replace("H-b", "B", "2*b"), FormulaError);
    EXPECT_THROW(cal.Replace("H", "", "1"), FormulaError);
    EXPECT_THROW(cal.Replace("AAB", "AB", "BBAA"), FormulaError);  // grows for ever, although no AB is put in
    EXPECT_EQ(cal.Replace("h-h1-60", "h1", "500"), "H-500-60");
    EXPECT_EQ(cal.Replace("aabb", "AB", ""), "");     // what closes up is replaced as well
    EXPECT_EQ(cal.Replace1("aabb", "ab", ""), "AB");  // in one pass it is not
    EXPECT_EQ(cal.Replace1("kh1-KH1", "kh1", "kh1+1"), "kh1+1-kh1+1");
    EXPECT_EQ(cal.Replace("aab", "AB", "bb"), "Abb");    // small letters put in are not found
    EXPECT_EQ(cal.Replace("AABB", "AB", "BA"), "BBAA");  // AABB, ABAB, BAAB, BABA, BBAA
    EXPECT_THROW(cal.Replace1("H", "", "1"), FormulaError);
    EXPECT_EQ(cal.Replace1("框b", "B", "框"), "框框");
}

TEST(Cal, LosesWhatItsQueueAndStackCannotHoldAndKeepsWhatIsLeft) {
    // "1+1+...": each "+" queues a number and, from the second on, a "+". The 51st number is entry 100, so
    // of 60 ones the first 51 and 49 additions come through.
    std::string ones = "1";
    for (int i = 1; i < 60; ++i) ones += "+1";
    EXPECT_EQ(Cal().CalExpress(ones), 1);  // 49 additions leave two numbers: 50 and the last 1 above it
    // Spare parentheses fill the stack up to 99; behind two more the "+" and then the 3 are lost.
    Cal full;
    for (int i = 0; i < 120; ++i) full.CalExpress("((");
    EXPECT_EQ(full.CalExpress("((2+3"), 2);
    Cal leftover;
    EXPECT_EQ(leftover.CalExpress("2(3+4)"), 7);
    EXPECT_EQ(leftover.CalExpress("-5"), -3);  // the 2 left below serves as the left operand
}

TEST(Cal, AgreesWithALiteralReading) {
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    const char* pieces[] = {"1",    "2.5",  "600", "0", "1500", "33.333", "+",    "-",    "*",
                            "/",    "(",    ")",   "+", "-",    "*",      "/",    "(",    ")",
                            "SIN(", "cos(", "F",   "B", "C",    "SQR(",   "LOG(", "ATN(", "EXP(",
                            "TAN(", " ",    ".",   "^", "框",   "1.2.3"};
    std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
    std::uniform_int_distribution<int> length(0, 24);
    int finite = 0;
    for (int round = 0; round < 20000; ++round) {
        Cal cal;
        LiteralCal literal;
        for (int formula = 0; formula < 2 && !literal.endless; ++formula) {
            std::string text;
            const int count = round % 50 == 0 ? 8 * length(random) : length(random);
            for (int i = 0; i < count; ++i) text += pieces[pick(random)];
            const float expected = literal.CalExpress(text);
            if (literal.endless) {
                EXPECT_THROW(cal.CalExpress(text), FormulaError) << text << " seed " << seed;
            } else {
                ASSERT_EQ(cal.CalExpress(text), expected) << text << " seed " << seed;
                ++finite;
            }
        }
    }
    EXPECT_GT(finite, 5000);
}

TEST(Labels, PutInLongestNameFirst) {
    const struct {
        const char* formula;
        std::vector<std::string> names;
        std::vector<std::string> values;
        float value;
    } kTable[] = {
        {"h-h1-60", {"B", "H", "H1"}, {"1500", "1800", "600"}, 1140},
        {"B1", {"B"}, {"12"}, 121},   // a name inside a word that is no label
        {"B/6-41", {}, {}, 0.7547F},  // no label: B is the cosine, here of -41 degrees
        {"b+上亮高", {" 上亮高 ", "B"}, {" 400", "100"}, 500},
        {"x", {"yy", "Z1", "X"}, {"1", "2", "z1"}, 1},  // Z1 had its turn; Z separates
        {"x", {"X", "Y"}, {"y", "5"}, 5},  // a value in small letters is a name to the next label
        {"Φ*2", {"φ"}, {"5"}, 10},
        {"x", {"X", "x"}, {"1", "2"}, 1},  // equal names: the first after sorting
        {"3*B", {"B"}, {"-2"}, -2},        // 3 times an absent operand, minus 2
    };
    for (const auto& row : kTable) {
        const std::size_t count = row.names.size();
        LabelSet set{row.names, row.values, {}, {}, static_cast<std::int16_t>(count - 1)};
        set.px.resize(count);
        set.py.resize(count);
        SortLabelsByLength(set.names, set.values, set.px, set.py, set.last);
        EXPECT_NEAR(EvalWithLabels(row.formula, set), row.value, 0.0005) << row.formula;
    }
    LabelSet single{{" B "}, {" 5 "}, {0}, {0}, 0};
    SortLabelsByLength(single.names, single.values, single.px, single.py, single.last);
    EXPECT_EQ(single.names[0] + single.values[0], " B  5 ");  // one label is not trimmed
    EXPECT_THROW(EvalWithLabels("h", {"H"}, {"h+1"}, 0), FormulaError);
}

}  // namespace
}  // namespace kalvane::test
