#pragma once

#include <string>
#include <utility>

#include "platform/notice.h"

namespace kalvane {

/// Passes on the first `most` messages, then `last` once, and no more: for jobs over a file or a table,
/// which could otherwise have the operator confirm a box for each of a hundred thousand rows.
class NoticeLimit final : public Notice {
  public:
    /// `to` must outlive the limit.
    NoticeLimit(Notice& to, int most, std::string last) : to_(to), most_(most), last_(std::move(last)) {}

    void Show(const std::string& text, const std::string& title, NoticeIcon icon) override {
        if (shown_ > most_) return;
        to_.Show(shown_ < most_ ? text : last_, title, icon);
        ++shown_;
    }

  private:
    Notice& to_;
    int most_;
    int shown_ = 0;
    std::string last_;
};

}  // namespace kalvane
