#include "platform/recovery_shelf.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>
#include <utility>

#include "numeric/assertion.h"
#include "numeric/error.h"
#include "platform/files.h"

namespace kalvane {
namespace {
constexpr std::string_view kExtension = ".txt";
constexpr int kLargestNumber = 1'000'000'000;  // a file beyond it is not ours: the next number must fit
}  // namespace

RecoveryShelf::RecoveryShelf(std::filesystem::path folder, std::string stem)
    : folder_(std::move(folder)), stem_(std::move(stem)), offered_(Numbers()) {
    PutAside();
}

/// The number in the name of a recovery file; 0 for any other file.
int RecoveryShelf::NumberIn(std::string_view name) const {
    if (!name.starts_with(stem_) || !name.ends_with(kExtension)) return 0;
    const char* first = name.data() + stem_.size();
    const char* last = name.data() + name.size() - kExtension.size();
    int number = 0;
    const auto [stop, failure] = std::from_chars(first, last, number);
    return failure == std::errc() && stop == last && number < kLargestNumber ? number : 0;
}

std::vector<int> RecoveryShelf::Numbers() const {
    std::vector<int> numbers;
    std::error_code failure;
    for (std::filesystem::directory_iterator file(folder_, failure), end; !failure && file != end;
         file.increment(failure)) {
        const int number = NumberIn(file->path().filename().string());
        if (number > 0) numbers.push_back(number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

std::filesystem::path RecoveryShelf::File(int number) const {
    return folder_ / (stem_ + std::to_string(number) + std::string(kExtension));
}

void RecoveryShelf::Remove(int number) {
    std::error_code ignored;  // a file that is gone, or that cannot go, is offered once more: no harm
    std::filesystem::remove(File(number), ignored);
    std::erase(offered_, number);
}

bool RecoveryShelf::Offers() const {
    return !offered_.empty();
}

std::string RecoveryShelf::Take() {
    KALVANE_ASSERT(Offers());
    const int number = offered_.back();
    offered_.pop_back();
    std::string text = ReadPlainFile(File(number));
    current_ = number;
    return text;
}

void RecoveryShelf::Keep(const std::string& text) {
    WriteFileAtomically(File(current_), text);
    // Work that an undo restored from the shelf is not kept there as well.
    for (const int number : Numbers()) {
        if (number == current_) continue;
        try {
            if (ReadPlainFile(File(number)) == text) Remove(number);
        } catch (const FileError&) {
            continue;
        }
    }
}

void RecoveryShelf::PutAside() {
    const std::vector<int> numbers = Numbers();
    for (std::size_t i = 0; i + kMost < numbers.size(); ++i) Remove(numbers[i]);
    current_ = numbers.empty() ? 1 : numbers.back() + 1;
}

void RecoveryShelf::Discard() {
    Remove(current_);
}

}  // namespace kalvane
