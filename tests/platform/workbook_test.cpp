#include "platform/workbook.h"

#include <signal.h>
#include <sys/resource.h>

#include "numeric/error.h"
#include "platform/files.h"
#include "support/temp_folder.h"
#include "support/xlsx_reader.h"

namespace kalvane::test {
namespace {

/// No file of this process grows beyond a size, as on a disk that is full from there on.
class SmallDisk {
  public:
    explicit SmallDisk(rlim_t bytes) {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        signal(SIGXFSZ, SIG_DFL);
    }

  private:
    rlimit before_ = {};
};

TEST(Workbook, OneThatIsCutOffDoesNotReplaceTheGoodOne) {
    constexpr int kRows = 4000;
    const TempFolder folder;
    const auto file = folder / "a.xlsx";
    Workbook book;
    Sheet& sheet = book.AddSheet();
    for (int row = 1; row <= kRows; ++row) sheet.WriteValue(row, 1, std::to_string(row));
    sheet.WriteText(kRows, 2, "尾");
    WriteFileAtomically(file, "the good one");
    // The sheet takes about 150 kB before it is zipped, and 15 kB in the file: it is cut off at every size,
    // though of most the file itself has room.
    for (const rlim_t bytes : {100U, 1000U, 10'000U, 20'000U, 40'000U, 80'000U}) {
        {
            const SmallDisk disk(bytes);
            EXPECT_THROW(book.Save(file), FileError) << bytes;
        }
        EXPECT_EQ(ReadFile(file), "the good one");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
    }
    EXPECT_THROW(book.Save(folder / "missing/a.xlsx"), FileError);
    book.Save(file);
    const std::string cells = XlsxReader(file).Sheet(1).cells;
    EXPECT_EQ(std::count(cells.begin(), cells.end(), '\n'), kRows);
}

}  // namespace
}  // namespace kalvane::test
