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

    /// Asks yes or no; true for yes. Where nobody can answer, the text is shown and the answer is no.
    virtual bool Confirm(const std::string& text, const std::string& title) {
        Show(text, title, NoticeIcon::Warning);
        return false;
    }
};

}  // namespace kalvane
