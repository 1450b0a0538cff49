#pragma once

#include <filesystem>

namespace kalvane {

/// Makes each of the five store files that is missing in `folder`: the main store with the starter
/// library, the user store with its two users, the others empty; and the user's guide, help.txt. A file that
/// exists is not touched, and a store of which there are dated copies is not made: opening it reports how to
/// recover it. A store gets its name only when it is complete. Throws StoreError or FileError.
void CreateMissingStores(const std::filesystem::path& folder);

}  // namespace kalvane
