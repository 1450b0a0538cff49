#include "drawing/recovery_shelf.h"

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

constexpr std::string_view kStem = "unsaved-drawing-";
constexpr std::string_view kExtension = ".txt";

/// The number in the name of a recovery file; 0 for any other file.
int NumberIn(std::string_view name) {
    if (!name.starts_with(kStem) || !name.ends_with(kExtension)) return 0;
    const char* first = name.data() + kStem.size();
    const char* last = name.data() + name.size() - kExtension.size();
    int number = 0;
    const auto [stop, failure] = std::from_chars(first, last, number);
    return failure == std::errc() && stop == last ? number : 0;
}

}  // namespace

RecoveryShelf::RecoveryShelf(std::filesystem::path folder) : folder_(std::move(folder)), offered_(Numbers()) {
    PutAside();
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
    return folder_ / (std::string(kStem) + std::to_string(number) + std::string(kExtension));
}

void RecoveryShelf::Remove(int number) {
    std::error_code ignored;  // a file that is gone, or that cannot go, is offered once more: no harm
    std::filesystem::remove(File(number), ignored);
    std::erase(offered_, number);
}

bool RecoveryShelf::Offers() const {
    return !offered_.empty();
}

UnsavedDrawing RecoveryShelf::Take() {
    KALVANE_ASSERT(Offers());
    const int number = offered_.back();
    offered_.pop_back();
    UnsavedDrawing drawing = ReadRecoveryText(ReadFile(File(number)));
    current_ = number;
    return drawing;
}

void RecoveryShelf::Keep(const UnsavedDrawing& drawing) {
    const std::string text = RecoveryText(drawing);
    WriteFileAtomically(File(current_), text);
    // A drawing that an undo restored from the shelf is not kept there as well.
    for (const int number : Numbers()) {
        if (number == current_) continue;
        try {
            if (ReadFile(File(number)) == text) Remove(number);
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
