#pragma once

#include <iostream>

#include "platform/notice.h"

namespace kalvane {

/// Writes the messages of core routines to standard error, one line each, and remembers that there was one:
/// then something of what was asked for is missing.
class LineNotice : public Notice {
  public:
    void Show(const std::string& text, const std::string& title, NoticeIcon) override {
        std::cerr << (title.empty() ? "" : title + "：") << text << '\n';
        hasShown_ = true;
    }
    bool HasShown() const { return hasShown_; }

  private:
    bool hasShown_ = false;
};

}  // namespace kalvane
