#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/notice.h"

namespace kalvane {

/// Keeps messages until it is asked for them: for work in a transaction, over which no message box may stand.
class HeldNotice final : public Notice {
  public:
    void Show(const std::string& text, const std::string& title, NoticeIcon icon) override {
        messages_.push_back({text, title, icon});
    }
    std::size_t Count() const { return messages_.size(); }

    /// Shows what was kept, in its order, and forgets it.
    void PassOn(Notice& to) {
        for (const Message& message : std::exchange(messages_, {})) {
            to.Show(message.text, message.title, message.icon);
        }
    }

  private:
    struct Message {
        std::string text;
        std::string title;
        NoticeIcon icon;
    };
    std::vector<Message> messages_;
};

}  // namespace kalvane
