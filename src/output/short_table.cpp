#include "output/short_table.h"

#include <algorithm>

#include "numeric/number.h"

namespace kalvane {

void SimpleBuyTable::AddRecord(const Fields& fields) {
    const std::int16_t line = Checked16(static_cast<std::int64_t>(records_.size()));
    const auto nextBox = static_cast<std::int16_t>(pictures_.size());  // no more boxes than lines

    BuyRecord record;
    std::copy_n(fields.begin() + 1, record.size(), record.begin());
    records_.push_back(std::move(record));
    if (lines_ == 0) {
        pages_.push_back({line, line, nextBox, nextBox});
        pageCount_ = std::to_string(pages_.size());
    }
    ++lines_;
    if (boxes_ > 0 && pictures_.back().key == fields[15]) {
        ++pictures_.back().count;
    } else {
        pictures_.push_back({fields[15], fields[16], fields[17], 1});
        ++boxes_;
    }
    if (lines_ == kMostLines || boxes_ == kMostBoxes) AddRecordEnd();
}

void SimpleBuyTable::AddRecordEnd() {
    if (lines_ == 0) return;
    pages_.back().lastLine = static_cast<std::int16_t>(records_.size() - 1);
    pages_.back().lastBox = static_cast<std::int16_t>(pictures_.size() - 1);
    lines_ = 0;
    boxes_ = 0;
}

void SimpleBuyTable::ClearAll() {
    records_.clear();
    pictures_.clear();
    pages_.clear();
    pageCount_ = "0";
    lines_ = 0;
    boxes_ = 0;
}

}  // namespace kalvane
