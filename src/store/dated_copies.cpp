#include "store/dated_copies.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

#include "numeric/error.h"
#include "platform/files.h"
#include "store/store_copy.h"

namespace kalvane {
namespace {

using Path = std::filesystem::path;

constexpr std::size_t kDayDigits = 8;    // of the date
constexpr std::size_t kTimeDigits = 15;  // date, hyphen, time

Path FolderOf(const Path& store) {
    return store.parent_path() / "副本";
}

/// "20251125-101530-042", local time: names in order are times in order.
std::string Stamp() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto thousandths =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm local = {};
    localtime_r(&seconds, &local);
    char text[32];
    const std::size_t length = std::strftime(text, sizeof text, "%Y%m%d-%H%M%S", &local);
    std::snprintf(text + length, sizeof text - length, "-%03d", static_cast<int>(thousandths));
    return text;
}

/// What stands in a copy's name before and after the stamp.
std::string Prefix(const Path& store) {
    return store.stem().string() + "-";
}
std::string StampOf(const Path& copy) {
    const std::string name = copy.stem().string();
    return name.substr(name.find('-') + 1);
}

bool IsCopyOf(const Path& file, const Path& store) {
    const std::string stamp = StampOf(file);
    return file.filename().string().starts_with(Prefix(store)) && file.extension() == store.extension() &&
           stamp.size() == Stamp().size() &&
           std::all_of(stamp.begin(), stamp.end(), [](char c) { return (c >= '0' && c <= '9') || c == '-'; });
}

/// A name in the folder of the copies that is not taken; the folder is made.
Path FreeName(const Path& store, const std::string& marked) {
    std::error_code failure;
    std::filesystem::create_directories(FolderOf(store), failure);
    if (failure) throw FileError("文件夹“" + FolderOf(store).string() + "”不能建立。");
    for (;;) {  // a millisecond later the name is another
        Path name = FolderOf(store) / (Prefix(store) + marked + Stamp() + store.extension().string());
        if (!std::filesystem::exists(name)) return name;
    }
}

void DropOldCopies(const Path& store) {
    const std::vector<Path> copies = CopiesOf(store);
    for (std::size_t i = kCopiesKept; i < copies.size(); ++i) {
        std::error_code ignored;
        std::filesystem::remove(copies[i], ignored);
    }
}

/// Keeps a second name for a file, or where the file system has no such thing, a second file.
void KeepAside(const Path& file, const Path& aside) {
    std::error_code failure;
    std::filesystem::create_hard_link(file, aside, failure);
    if (failure) std::filesystem::copy_file(file, aside, failure);
    if (failure) FailOnFile(file, "另存", failure.value());
}

}  // namespace

Path KeepCopy(const Path& store) {
    const Path copy = FreeName(store, "");
    CopyStore(store, copy);
    DropOldCopies(store);
    return copy;
}

void KeepDailyCopy(const Path& store) {
    const std::vector<Path> copies = CopiesOf(store);
    const bool isKept =
        !copies.empty() && StampOf(copies.front()).substr(0, kDayDigits) == Stamp().substr(0, kDayDigits);
    if (!isKept) KeepCopy(store);
}

std::vector<Path> CopiesOf(const Path& store) {
    std::vector<Path> copies;
    std::error_code ignored;  // without the folder there is no copy
    for (const auto& entry : std::filesystem::directory_iterator(FolderOf(store), ignored)) {
        if (IsCopyOf(entry.path(), store)) copies.push_back(entry.path());
    }
    std::sort(copies.begin(), copies.end(), std::greater<>());
    return copies;
}

bool IsLost(const Path& store) {
    return !std::filesystem::exists(store) && !CopiesOf(store).empty();
}

std::string TimeOfCopy(const Path& copy) {
    std::string text = StampOf(copy).substr(0, kTimeDigits);
    if (text.size() < kTimeDigits) return text;
    text[kDayDigits] = ' ';
    for (const std::size_t at : {13U, 11U}) text.insert(at, ":");
    for (const std::size_t at : {6U, 4U}) text.insert(at, "-");
    return text;
}

void ReplaceByCopy(const Path& store, const Path& copy) {
    const Path aside = FreeName(store, "损坏-");
    if (std::filesystem::exists(store)) KeepAside(store, aside);
    // What the engine wrote down to undo belongs to the file that stood here, never to the copy.
    Path journal = store;
    journal += "-journal";
    if (std::filesystem::exists(journal)) {
        Path journalAside = aside;
        journalAside += "-journal";
        std::error_code failure;
        std::filesystem::rename(journal, journalAside, failure);
        if (failure) FailOnFile(journal, "改名", failure.value());
    }
    CopyStore(copy, store);
}

}  // namespace kalvane
