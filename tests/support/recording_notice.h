#pragma once

#include <string>
#include <vector>

#include "platform/notice.h"

namespace kalvane::test {

/// Keeps what the operator would have been shown, as "title|text".
class RecordingNotice : public Notice {
  public:
    void Show(const std::string& text, const std::string& title, NoticeIcon icon) override {
        shown.push_back(title + "|" + text);
        icons.push_back(icon);
    }

    bool Confirm(const std::string& text, const std::string& title) override {
        shown.push_back(title + "|" + text);
        return answer;
    }

    bool answer = false;  ///< to every question
    std::vector<std::string> shown;
    std::vector<NoticeIcon> icons;
};

}  // namespace kalvane::test
