// Drawing files and DXF files as nobody writes them. The ordinary run takes a few seconds; a long one is
// asked for by KALVANE_FUZZ_INPUTS (see docs/fuzzing.md).

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <sstream>

#include "drawing/cpictire.h"
#include "drawing/dxf_import.h"
#include "drawing/mc_file.h"
#include "numeric/error.h"
#include "numeric/text.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "support/paths.h"
#include "support/recording_notice.h"

namespace kalvane::test {
namespace {

constexpr std::uint64_t kSeeds[] = {1, 2, 3, 5, 8, 13, 21, 34};
constexpr int kInputsOfOrdinaryRun = 24000;

using Random = std::mt19937_64;

std::size_t Below(Random& random, std::size_t count) {
    return random() % count;
}

/// Counts strokes and checks that each can be painted.
class CheckingTarget final : public PaintTarget {
  public:
    void DrawLine(float x1, float y1, float x2, float y2) override {
        ASSERT_TRUE(std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2));
    }
    void DrawText(float x, float y, std::string_view text) override {
        ASSERT_TRUE(std::isfinite(x) && std::isfinite(y) && IsUtf8(text));
    }
    float TextHeight(std::string_view) const override { return 240; }
    void NewPage() override {}
};

std::vector<std::string> DrawingFiles() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(SourceFolder() / "data/starter/drawings")) {
        files.push_back(ReadFile(entry.path()));
    }
    std::sort(files.begin(), files.end());  // the folder's order is not fixed
    return files;
}

std::vector<std::string> DxfFiles() {
    const std::string head = "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n";
    const std::string line =
        "  0\r\nLINE\r\n  8\r\n0\r\n 10\r\n12.5\r\n 20\r\n0\r\n 11\r\n1e3\r\n 21\r\n-7\r\n";
    const std::string mark =
        "0\nDIMENSION\n10\n5\n20\n6\n11\n7\n21\n8\n1\n框厚KH1\n13\n1\n23\n2\n14\n3\n24\n4\n";
    const std::string box = "0\nLWPOLYLINE\n90\n4\n10\n1\n20\n9\n10\n2\n20\n9\n10\n3\n20\n9\n10\n4\n20\n9\n";
    const std::string other = "  0\r\nCIRCLE\r\n 10\r\n1\r\n 40\r\n2\r\n  0\r\nTEXT\r\n  1\r\n窗\r\n";
    const std::string end = "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
    std::string many;
    for (int i = 0; i < 200; ++i) many += line + mark;
    return {head + line + box + mark + other + end, ToGbk(head + mark + box + mark + end), head + many + end};
}

/// One of the files with one to eight changes: bytes and pieces replaced, dropped, doubled, or put in.
std::string Mutated(const std::vector<std::string>& files, Random& random) {
    static const std::string kPieces[] = {
        "Line\r\n",    "Rec\n",     "Dir\r",        "Dim\r\n",     "String\r\n", "Arc\r\n", "Circle\n",
        "1e38\n",      "-3.5e38\n", "1e-45\n",      "1e999\n",     "nan\n",      "inf\n",   "\r\n\r\n",
        ",",           "\xFF\xFE",  "\xEF\xBB\xBF", "0\nENDSEC\n", "ENTITIES\n", "LINE\n",  "LWPOLYLINE\n",
        "DIMENSION\n", "24\n",      "1\n",          "21\n"};
    std::string text = files[Below(random, files.size())];
    for (std::size_t change = 1 + Below(random, 8); change > 0; --change) {
        const std::size_t at = Below(random, text.size() + 1);
        const std::size_t length = std::min(Below(random, 80), text.size() - at);
        const std::string& other = files[Below(random, files.size())];
        const std::string piece = text.substr(at, length);
        switch (Below(random, 6)) {
            case 0:
                text.replace(at, 1, 1, static_cast<char>(random()));
                break;
            case 1:
                text.erase(at, length);
                break;
            case 2:
                text.insert(at, other.substr(Below(random, other.size() + 1), 200));
                break;
            case 3:
                text.resize(at);
                break;
            case 4:
                for (std::size_t i = Below(random, 40) + 1; i > 0; --i) text.insert(at, piece);
                break;
            default:
                text.insert(at, kPieces[Below(random, std::size(kPieces))]);
        }
    }
    return text;
}

/// Whatever was read can be painted and written; a refusal comes with a readable text.
void Check(const CPictire& picture) {
    CheckingTarget target;
    picture.PrintPic(target, kFrame, {0, 0, 300, 200});
    try {
        ToGbk(McText(picture));
    } catch (const FileError& refusal) {
        ASSERT_TRUE(IsUtf8(refusal.what()));
    }
}

template <typename Read>
void Fuzz(const std::vector<std::string>& files, Read read) {
    const char* asked = std::getenv("KALVANE_FUZZ_INPUTS");
    const int inputs = asked != nullptr ? std::atoi(asked) : kInputsOfOrdinaryRun;
    const int perSeed = inputs / static_cast<int>(std::size(kSeeds));
    RecordingNotice notice;
    for (const std::uint64_t seed : kSeeds) {
        if (asked != nullptr) std::fprintf(stderr, "seed %d: %d inputs\n", static_cast<int>(seed), perSeed);
        for (int i = 0; i < perSeed && !testing::Test::HasFailure(); ++i) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", input " + std::to_string(i));
            Random random(seed << 32U | static_cast<std::uint64_t>(i));
            const std::string bytes = Mutated(files, random);
            CPictire picture(notice);
            try {
                read(bytes, picture);
            } catch (const Error& refusal) {
                ASSERT_TRUE(IsUtf8(refusal.what()));
            }
            Check(picture);
            ASSERT_LE(notice.shown.size(), 6 * 51U);
            notice.shown.clear();
        }
    }
}

TEST(FileFuzz, DrawingFiles) {
    Fuzz(DrawingFiles(), [](const std::string& bytes, CPictire& picture) {
        const CPictire::FullNoticeLimit limit(picture);
        ReadMcText(DecodeFileText(bytes), picture);
    });
}

TEST(FileFuzz, DxfFiles) {
    Fuzz(DxfFiles(), [](const std::string& bytes, CPictire& picture) {
        std::stringbuf file(bytes, std::ios::in);
        EXPECT_TRUE(IsUtf8(DxfPrompt(ImportDxf(file, picture))));
    });
}

}  // namespace
}  // namespace kalvane::test
