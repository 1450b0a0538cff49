#pragma once

#include <iostream>

#include "platform/notice.h"

namespace kalvane {

/// Writes the messages of core routines to standard error, one line each.
class LineNotice : public Notice {
  public:
    void Show(const std::string& text, const std::string& title, NoticeIcon) override {
        std::cerr << (title.empty() ? "" : title + "：") << text << '\n';
    }
};

}  // namespace kalvane
