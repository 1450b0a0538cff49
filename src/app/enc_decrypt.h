#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

/// The one key that the login, the user administration and the change of password scramble with.
inline constexpr std::int16_t kPasswordKey = -21473;

/// Scrambles passwords so that they are not stored in clear. A text is taken as 16-bit words, the codes of
/// its characters in the system's code page; its scrambled form has four capital hexadecimal digits per
/// character. Texts are UTF-8. Nothing here fails.
///
/// The mixing pass is not its own inverse, so the Dec operations do not restore what the Enc operations were
/// given: a password is checked by scrambling what was typed and comparing.
class clsEncDecrypt {
  public:
    /// Scrambled form of `text`; empty for fewer than two characters.
    std::string EncBuf(std::string_view text) const;

    /// The words of a scrambled text, mixed once more, as characters. Empty when the text is shorter than
    /// eight characters or its length no multiple of four.
    std::string DecBuf(std::string_view scrambled) const;

    /// The words of a scrambled text as characters, without mixing; empty as for DecBuf.
    std::string CmprEncBuf(std::string_view scrambled) const;

    /// As EncBuf and DecBuf, with each word exclusive-ored with the key after mixing.
    std::string KeyEncBuf(std::string_view text, std::int16_t key) const;
    std::string KeyDecBuf(std::string_view scrambled, std::int16_t key) const;
};

}  // namespace kalvane
