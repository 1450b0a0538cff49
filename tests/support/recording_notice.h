#pragma once

#include <string>

#include "platform/notice.h"

namespace kalvane::test {

/// Keeps what was said: one line "text|title|icon" each; the icon as a letter, none for no icon.
class RecordingNotice : public Notice {
  public:
    void Show(const std::string& said, const std::string& title, NoticeIcon icon) override {
        static constexpr const char* kLetters[] = {"", "i", "!", "x"};
        text += said + "|" + title + "|" + kLetters[static_cast<int>(icon)] + "\n";
    }

    std::string text;
};

}  // namespace kalvane::test
