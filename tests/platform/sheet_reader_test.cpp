#include "platform/sheet_reader.h"

#include <zip.h>

#include "platform/files.h"
#include "platform/workbook.h"
#include "support/paths.h"
#include "support/refusal.h"
#include "support/temp_folder.h"

namespace kalvane::test {
namespace {

using Parts = std::vector<std::pair<std::string, std::string>>;

void WriteArchive(const std::filesystem::path& file, const Parts& parts) {
    zip_t* archive = zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    for (const auto& [name, text] : parts) {
        zip_file_add(archive, name.c_str(), zip_source_buffer(archive, text.data(), text.size(), 0), 0);
    }
    ASSERT_EQ(zip_close(archive), 0);
}

/// "a|b" for each row, up to the last.
std::string Cells(const std::filesystem::path& file, int columns) {
    const SheetTexts sheet = ReadFirstSheet(file, columns);
    std::string text;
    for (int row = 1; row <= sheet.RowCount(); ++row) {
        for (int column = 1; column <= columns; ++column) {
            text += sheet.Cell(row, column) + (column < columns ? "|" : "\n");
        }
    }
    return text;
}

TEST(SheetReader, ReadsWhatOurOwnWriterWrites) {
    const TempFolder folder;
    Workbook workbook;
    Sheet& sheet = workbook.AddSheet();
    sheet.WriteText(1, 1, " 门窗 ");
    sheet.WriteText(1, 3, "2-1");
    sheet.WriteText(2, 2, "=B<&\n");
    sheet.WriteValue(4, 1, "0012.50");
    sheet.WriteText(4, 9, "beyond");
    workbook.AddSheet().WriteText(1, 1, "second");
    workbook.Save(folder / "a.xlsx");
    std::filesystem::rename(folder / "a.xlsx", folder / "a.xls");  // the content counts
    EXPECT_EQ(Cells(folder / "a.xls", 3), " 门窗 ||2-1\n|=B<&\n|\n||\n12.5||\n");
    EXPECT_EQ(ReadFirstSheet(folder / "a.xls", 3).Cell(99, 9), "");
}

TEST(SheetReader, ReadsTheOtherWaysOfWritingASheet) {
    const TempFolder folder;
    WriteArchive(
        folder / "a.xlsx",
        {{"xl/workbook.xml",
          "<x:workbook><x:sheets><x:sheet name='b' r:id='r2'/><x:sheet r:id='r1'/></x:sheets></x:workbook>"},
         {"xl/_rels/workbook.xml.rels",
          "<Relationships><Relationship Id='r1' Target='no.xml'/><Relationship Id='r2' "
          "Target='/xl/worksheets/other.xml'/></Relationships>"},
         {"xl/sharedStrings.xml",
          "<sst><si><r><t>框</t></r><r><t>GK</t></r><rPh><t>kuang</t></rPh></si></sst>"},
         {"xl/worksheets/other.xml",
          "<x:worksheet><x:sheetData><x:row r='2'><x:c r='B2' t='s'><x:v>0</x:v></x:c><x:c t='inlineStr'>"
          "<x:is><x:t xml:space='preserve'> </x:t></x:is></x:c></x:row><x:row><x:c><x:v>1E3</x:v></x:c>"
          "<x:c t='str'><x:f>A1</x:f><x:v>007</x:v></x:c><x:c><x:f>B1/3</x:f><x:v>0.33333333333333331</x:v>"
          "</x:c></x:row></x:sheetData></x:worksheet>"}});
    EXPECT_EQ(Cells(folder / "a.xlsx", 3), "||\n|框GK| \n1000|007|0.333333333333333\n");
}

TEST(SheetReader, ReadsAnOlderFile) {
    const std::filesystem::path file = SourceFolder() / "tests/platform/files/formulas.xls";
    EXPECT_EQ(Cells(file, 4),
              "门窗名称：推拉窗|7||\n型材名称|型材规格|数量|计算公式\n框|GK60|2-1|=B\n扇||2|0.1\n"
              "合||1234567.5|(B-2*60)/2\n||下|\n");
}

TEST(SheetReader, RefusesWhatIsNoWorkbook) {
    const TempFolder folder;
    const auto refused = [&](const std::string& bytes) {
        WriteFileAtomically(folder / "a.xls", bytes);
        return Refusal([&] { ReadFirstSheet(folder / "a.xls", 4); });
    };
    for (const char* bytes : {"", "PK", "PK\3\4 cut", "<html><table>", "\xD0\xCF\x11\xE0 cut"}) {
        EXPECT_NE(refused(bytes).find("工作簿"), std::string::npos) << bytes;
    }
    // A sound file that is cut, or in which a byte is bent, is read or refused; on some the library crashes.
    const std::string sound = ReadFile(SourceFolder() / "tests/platform/files/formulas.xls");
    for (std::size_t at = 0; at < sound.size(); at += 64) refused(sound.substr(0, at));
    for (const std::size_t at : {0, 30, 600, 1424, 1440, 1460, 1590, 1680, 1766, 2042, 2170, 2660}) {
        std::string bent = sound;
        bent[at] = static_cast<char>(~bent[at]);
        refused(bent);
    }
    EXPECT_NE(Refusal([&] { ReadFirstSheet(folder.Path(), 4); }), "");
    EXPECT_NE(Refusal([&] { ReadFirstSheet(folder / "none.xlsx", 4); }), "");
}

}  // namespace
}  // namespace kalvane::test
