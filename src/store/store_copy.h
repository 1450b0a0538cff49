#pragma once

#include <filesystem>

namespace kalvane {

/// How a copy is looked through before it gets its name.
enum class CopyCheck {
    None,
    Quick,  ///< the structure of every page
    Full    ///< and what the indexes say against the rows
};

/// Makes `target` a copy of the store file `source`, with everything that has been committed to it and with
/// its rights. The copy gets its name only when it is whole, has passed the check and is on the disk, in
/// place of a file that had the name. A connection may have `source` open, but none `target`. Throws
/// StoreDamage when the check finds damage, StoreError or FileError.
void CopyStore(const std::filesystem::path& source, const std::filesystem::path& target, CopyCheck check);

/// Gives the store `target` the content of `source` in one transaction: a failure, or a kill, leaves it as it
/// was. Connections may have `target` open, outside of any command; they see the new content at once. Throws
/// StoreError.
void ReplaceContent(const std::filesystem::path& target, const std::filesystem::path& source);

}  // namespace kalvane
