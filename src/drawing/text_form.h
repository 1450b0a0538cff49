#pragma once

#include <string>

namespace kalvane {

/// The dialog that asks for the text of a text item.
class TextForm {
  public:
    virtual ~TextForm() = default;

    /// Asks with an empty box and returns what was typed; an empty text when cancelled.
    virtual std::string AskText() = 0;
};

}  // namespace kalvane
