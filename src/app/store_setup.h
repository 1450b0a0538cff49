#pragma once

#include <filesystem>

namespace kalvane {

/// Makes each of the four store files that is missing in `folder`: the main store with the starter
/// library, the user store with its two users, the others empty; and the user's guide, help.txt. A file that
/// is there is not touched, and a store of which there are dated copies is not made anew: whoever opens it
/// tells how to get it back. A store comes into being under its name only when it is complete. Throws
/// StoreError or FileError.
void CreateMissingStores(const std::filesystem::path& folder);

}  // namespace kalvane
