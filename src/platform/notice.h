#pragma once

#include <string>

namespace kalvane {

enum class NoticeIcon { None, Information, Warning, Error };

/// The one way in which core routines speak to the operator. Screens show a message box, the batch
/// program writes a line, tests record.
class Notice {
  public:
    virtual ~Notice() = default;

    /// Shows `text` (UTF-8) and returns once the operator has seen it. `title` may be empty.
    virtual void Show(const std::string& text, const std::string& title, NoticeIcon icon) = 0;
};

}  // namespace kalvane
