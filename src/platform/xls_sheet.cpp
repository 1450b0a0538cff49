#include "platform/xls_sheet.h"

#include <freexl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "platform/files.h"

namespace kalvane {
namespace {

constexpr unsigned int kPatienceSeconds = 60;

FileError NoWorkbook(const std::filesystem::path& path) {
    return FileError("“" + path.string() +
                     "”不是能读的 Excel 工作簿。加密的请先取消密码，其它格式的请在 Excel 中另存为 .xlsx。");
}

std::string CellText(const FreeXL_CellValue& cell) {
    switch (cell.type) {
        case FREEXL_CELL_INT:
            return ShortText(std::int64_t{cell.value.int_value});
        case FREEXL_CELL_DOUBLE:
            return ShortText(cell.value.double_value);
        case FREEXL_CELL_TEXT:
        case FREEXL_CELL_SST_TEXT:
        case FREEXL_CELL_DATE:
        case FREEXL_CELL_DATETIME:
        case FREEXL_CELL_TIME:
            return cell.value.text_value;
        default:
            return {};
    }
}

/// Appends the cells of the first sheet, as "row NUL column NUL text NUL"; false when something is wrong.
/// Nothing is released: the process ends.
bool AppendCells(const std::filesystem::path& path, int columns, std::string& bytes) {
    const void* file = nullptr;
    unsigned int password = 0;
    unsigned int rowCount = 0;
    unsigned short columnCount = 0;
    if (freexl_open(path.c_str(), &file) != FREEXL_OK ||
        freexl_get_info(file, FREEXL_BIFF_PASSWORD, &password) != FREEXL_OK ||
        password == FREEXL_BIFF_OBFUSCATED || freexl_select_active_worksheet(file, 0) != FREEXL_OK ||
        freexl_worksheet_dimensions(file, &rowCount, &columnCount) != FREEXL_OK) {
        return false;
    }
    for (unsigned int row = 0; row < rowCount; ++row) {
        for (unsigned short column = 0; column < columnCount && column < columns; ++column) {
            FreeXL_CellValue cell;
            if (freexl_get_cell_value(file, row, column, &cell) != FREEXL_OK) return false;
            const std::string text = CellText(cell);
            if (text.empty()) continue;
            for (const std::string& part : {std::to_string(row + 1), std::to_string(column + 1), text}) {
                bytes.append(part).push_back('\0');
            }
        }
    }
    return true;
}

/// What the process does that reads the file.
[[noreturn]] void ReadAndEnd(const std::filesystem::path& path, int columns, int pipe) {
    constexpr rlimit kNoCore = {0, 0};
    ::setrlimit(RLIMIT_CORE, &kNoCore);
    ::alarm(kPatienceSeconds);
    std::string bytes;
    if (!AppendCells(path, columns, bytes)) ::_exit(1);
    std::string_view rest = bytes;
    while (!rest.empty()) {
        const ssize_t written = ::write(pipe, rest.data(), rest.size());
        if (written < 0 && errno != EINTR) ::_exit(1);
        if (written > 0) rest.remove_prefix(static_cast<std::size_t>(written));
    }
    ::_exit(0);
}

/// What another process writes to a pipe, until it ends.
std::string ReadAll(int pipe) {
    std::string bytes;
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(pipe, buffer, sizeof buffer);
        if (count == 0) return bytes;
        if (count > 0) bytes.append(buffer, static_cast<std::size_t>(count));
        if (count < 0 && errno != EINTR) return bytes;
    }
}

}  // namespace

SheetTexts ReadXlsSheet(const std::filesystem::path& path, int columns) {
    int ends[2];
    if (::pipe(ends) != 0) FailOnFile(path, "读取", errno);
    const pid_t reader = ::fork();
    if (reader < 0) {
        const int code = errno;
        ::close(ends[0]);
        ::close(ends[1]);
        FailOnFile(path, "读取", code);
    }
    if (reader == 0) ReadAndEnd(path, columns, ends[1]);
    ::close(ends[1]);
    const std::string bytes = ReadAll(ends[0]);
    ::close(ends[0]);
    int status = 0;
    while (::waitpid(reader, &status, 0) < 0 && errno == EINTR) {
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || !IsUtf8(bytes)) throw NoWorkbook(path);

    SheetTexts texts;
    std::string_view rest = bytes;
    const std::string_view end("\0", 1);
    while (!rest.empty()) {
        const auto row = static_cast<int>(Val(TakeUpTo(rest, end)));
        const auto column = static_cast<int>(Val(TakeUpTo(rest, end)));
        texts.Set(row, column, std::string(TakeUpTo(rest, end)));
    }
    return texts;
}

}  // namespace kalvane
