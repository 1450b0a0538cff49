#pragma once

#include <filesystem>

namespace kalvane {

/// Makes `target` a copy of the store file `source`, with everything that has been committed to it. The copy
/// gets its name only when it is whole and on the disk, in place of a file that had the name. A connection
/// may have `source` open, but none `target`. Throws StoreError or FileError.
void CopyStore(const std::filesystem::path& source, const std::filesystem::path& target);

/// Gives the store `target` the content of `source` in one transaction: a failure, or a kill, leaves it as it
/// was. Connections may have `target` open, outside of any command; they see the new content at once. Throws
/// StoreError.
void ReplaceContent(const std::filesystem::path& target, const std::filesystem::path& source);

}  // namespace kalvane
