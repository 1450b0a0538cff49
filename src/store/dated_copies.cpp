#include "store/dated_copies.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <ctime>
#include <optional>
#include <set>
#include <string_view>
#include <tuple>

#include "numeric/error.h"
#include "platform/files.h"
#include "platform/unfinished_file.h"
#include "store/store_copy.h"
#include "store/store_files.h"

namespace kalvane {
namespace {

using Path = std::filesystem::path;

constexpr std::size_t kDayDigits = 8;     // of the date
constexpr std::size_t kTimeDigits = 15;   // date, hyphen, time
constexpr std::size_t kStampLength = 19;  // and thousandths
constexpr std::chrono::hours kWeek(7 * 24);

// What stands before the number in a copy's name.
constexpr char kDaily = 'd';
constexpr char kDailyInFull = 'f';  // the store was looked through in full
constexpr char kBeforeChange = 'c';
constexpr std::string_view kKinds = "dfc";

/// What the name of a copy says: "cl-20251125-101530-042-d17.mdb". Copies of earlier programs have no kind
/// and no number: they count as daily ones, made before all others.
struct CopyName {
    Path file;
    std::string stamp;  ///< local time
    char kind = kDaily;
    std::uint32_t number = 0;
    bool isFuture = false;
};

constexpr const char* kFolder = "副本";

Path FolderOf(const Path& store) {
    return store.parent_path() / kFolder;
}

/// "20251125-101530-042", local time: of a right clock, stamps in order are times in order.
std::string Stamp(CopyTime now) {
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

/// Weeks of seven days, counted from a fixed day: a copy stays in its week while time goes on.
int WeekOf(const std::string& stamp) {
    const int day = std::stoi(stamp.substr(0, kDayDigits));
    const std::chrono::year_month_day date{std::chrono::year(day / 10000),
                                           std::chrono::month(static_cast<unsigned>(day / 100 % 100)),
                                           std::chrono::day(static_cast<unsigned>(day % 100))};
    return static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count() / 7);
}

/// What stands in a copy's name before the stamp.
std::string Prefix(const Path& store) {
    return store.stem().string() + "-";
}

bool IsStamp(std::string_view text) {
    constexpr std::string_view kForm = "dddddddd-dddddd-ddd";
    return std::equal(text.begin(), text.end(), kForm.begin(), kForm.end(),
                      [](char c, char form) { return form == 'd' ? c >= '0' && c <= '9' : c == form; });
}

std::optional<CopyName> NameOf(const Path& file, const Path& store, CopyTime now) {
    const std::string stem = file.stem().string();
    std::string_view rest = stem;
    const std::string prefix = Prefix(store);
    if (file.extension() != store.extension() || !rest.starts_with(prefix)) return std::nullopt;
    rest.remove_prefix(prefix.size());
    CopyName name{file, std::string(rest.substr(0, kStampLength))};
    if (!IsStamp(name.stamp)) return std::nullopt;
    rest.remove_prefix(kStampLength);
    if (!rest.empty()) {
        if (rest.size() < 3 || rest[0] != '-' || kKinds.find(rest[1]) == std::string_view::npos) {
            return std::nullopt;
        }
        name.kind = rest[1];
        const auto [stop, failure] = std::from_chars(rest.data() + 2, rest.data() + rest.size(), name.number);
        if (failure != std::errc() || stop != rest.data() + rest.size()) return std::nullopt;
    }
    name.isFuture = name.stamp > Stamp(now);
    return name;
}

/// Newest first.
std::vector<CopyName> NamesOf(const Path& store, CopyTime now) {
    std::vector<CopyName> names;
    std::error_code failure;  // a folder that is not there, or cannot be read, shows no copy
    for (std::filesystem::directory_iterator file(FolderOf(store), failure), end; !failure && file != end;
         file.increment(failure)) {
        if (auto name = NameOf(file->path(), store, now)) names.push_back(std::move(*name));
    }
    std::sort(names.begin(), names.end(), [](const CopyName& a, const CopyName& b) {
        return std::tuple(!a.isFuture, a.number, a.stamp) > std::tuple(!b.isFuture, b.number, b.stamp);
    });
    return names;
}

void MakeFolder(const Path& store) {
    std::error_code failure;
    std::filesystem::create_directories(FolderOf(store), failure);
    if (failure) throw FileError("文件夹“" + FolderOf(store).string() + "”不能建立。");
}

std::uint32_t NextNumber(const std::vector<CopyName>& names) {
    std::uint32_t last = 0;
    for (const CopyName& name : names) last = std::max(last, name.number);
    return last + 1;
}

/// The copies, newest first, that stay: the newest of each kind, and one a week of the daily ones.
std::set<Path> Kept(const std::vector<CopyName>& names, CopyTime now) {
    const int lastWeek = WeekOf(Stamp(now)) - kWeeksKept;
    std::set<Path> kept;
    std::size_t daily = 0;
    std::size_t beforeChange = 0;
    std::set<int> weeks;
    for (const CopyName& name : names) {
        std::size_t& count = name.kind == kBeforeChange ? beforeChange : daily;
        if (count++ < kCopiesKept) kept.insert(name.file);
        if (name.kind == kBeforeChange || name.isFuture) continue;
        const int week = WeekOf(name.stamp);
        if (week > lastWeek && weeks.insert(week).second) kept.insert(name.file);
    }
    return kept;
}

Path Keep(const Path& store, char kind, CopyTime now) {
    MakeFolder(store);
    std::vector<CopyName> names = NamesOf(store, now);
    const Path copy = FolderOf(store) / (Prefix(store) + Stamp(now) + "-" + kind +
                                         std::to_string(NextNumber(names)) + store.extension().string());
    CopyStore(store, copy, kind == kDailyInFull ? CopyCheck::Full : CopyCheck::Quick);
    names = NamesOf(store, now);
    std::set<Path> kept = Kept(names, now);
    kept.insert(copy);
    for (const CopyName& name : names) {
        std::error_code ignored;
        if (kept.count(name.file) == 0) std::filesystem::remove(name.file, ignored);
    }
    return copy;
}

/// A name for a damaged store that is not taken.
Path DamagedName(const Path& store) {
    MakeFolder(store);
    for (;;) {  // a millisecond later the name is another
        Path name = FolderOf(store) / (Prefix(store) + "损坏-" + Stamp(std::chrono::system_clock::now()) +
                                       store.extension().string());
        if (!FileExists(name)) return name;
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

Path KeepCopy(const Path& store, CopyTime now) {
    return Keep(store, kBeforeChange, now);
}

void KeepDailyCopy(const Path& store, CopyTime now) {
    bool isKept = false;
    bool isLookedThrough = false;
    const std::string today = Stamp(now).substr(0, kDayDigits);
    const std::string weekAgo = Stamp(now - kWeek);
    for (const CopyName& name : NamesOf(store, now)) {
        if (name.kind == kBeforeChange || name.isFuture) continue;
        isKept = isKept || name.stamp.starts_with(today);
        isLookedThrough = isLookedThrough || (name.kind == kDailyInFull && name.stamp > weekAgo);
    }
    if (!isKept) Keep(store, isLookedThrough ? kDaily : kDailyInFull, now);
}

std::vector<Path> CopiesOf(const Path& store, CopyTime now) {
    std::vector<Path> copies;
    for (CopyName& name : NamesOf(store, now)) copies.push_back(std::move(name.file));
    return copies;
}

bool IsCopyFolder(const Path& folder) {
    return folder.filename() == kFolder;
}

bool IsLost(const Path& store) {
    return !FileExists(store) && !CopiesOf(store).empty();
}

std::string TimeOfCopy(const Path& copy, CopyTime now) {
    const std::string name = copy.stem().string();
    const std::string stamp = name.substr(name.find('-') + 1).substr(0, kStampLength);
    std::string text = stamp.substr(0, kTimeDigits);
    if (text.size() < kTimeDigits) return text;
    text[kDayDigits] = ' ';
    for (const std::size_t at : {13U, 11U}) text.insert(at, ":");
    for (const std::size_t at : {6U, 4U}) text.insert(at, "-");
    return stamp > Stamp(now) ? text + "（晚于现在的时间，电脑的时钟可能不准）" : text;
}

void ReplaceByCopy(const Path& store, const Path& copy) {
    const Path aside = DamagedName(store);
    if (FileExists(store)) KeepAside(store, aside);
    // What the engine wrote down to undo belongs to the file that stood here, never to the copy.
    Path journal = store;
    journal += "-journal";
    if (FileExists(journal)) {
        Path journalAside = aside;
        journalAside += "-journal";
        std::error_code failure;
        std::filesystem::rename(journal, journalAside, failure);
        if (failure) FailOnFile(journal, "改名", failure.value());
    }
    CopyStore(copy, store, CopyCheck::None);
}

void RemoveUnfinishedFiles(const Path& folder) {
    std::vector<Path> stray;
    for (const Path& place : {folder, FolderOf(folder / kMainStoreName)}) {
        std::error_code failure;
        for (std::filesystem::directory_iterator file(place, failure), end; !failure && file != end;
             file.increment(failure)) {
            if (IsUnfinishedName(file->path())) stray.push_back(file->path());
        }
    }
    for (const Path& file : stray) {
        std::error_code ignored;  // it is tried again at the next start
        std::filesystem::remove(file, ignored);
    }
}

}  // namespace kalvane
