#include "app/store_setup.h"

#include <functional>
#include <string>

#include "app/starter_library.h"
#include "app/user_accounts.h"
#include "platform/files.h"
#include "platform/help_text.h"
#include "platform/unfinished_file.h"
#include "store/connection.h"
#include "store/dated_copies.h"
#include "store/starter_files.h"
#include "store/store_files.h"

namespace kalvane {
namespace {

void FillUsers(Connection& users) {
    AddUserAccount(users, "Admin", "admin888", "111111111111");
    AddUserAccount(users, "user", "user888", "000111001011");
}

/// Makes a store under a temporary name, fills it, and only then gives it its own name.
void CreateWhole(const std::filesystem::path& file, StoreKind kind,
                 const std::function<void(Connection&)>& fill) {
    if (FileExists(file) || IsLost(file)) return;
    // Two programs may find the folder empty at the same moment.
    UnfinishedFile unfinished(file);
    CreateStore(unfinished.Path(), kind);
    if (fill) {
        Connection connection(unfinished.Path(), kind);
        fill(connection);
    }
    unfinished.FinishUnlessTaken();
}

}  // namespace

void CreateMissingStores(const std::filesystem::path& folder) {
    CreateWhole(folder / kMainStoreName, StoreKind::Main, FillFromStarterLibrary);
    CreateWhole(folder / kStockStoreName, StoreKind::Stock, {});
    CreateWhole(folder / kUserStoreName, StoreKind::Users, FillUsers);
    CreateWhole(folder / kTemplateStoreName, StoreKind::Main, {});
    // An older program's folder has none. Where nothing can be written it is looked at without.
    if (IsWritableFolder(folder)) CreateWhole(folder / kOwnStoreName, StoreKind::Own, {});
    if (!FileExists(folder / kHelpFileName)) {
        WriteFileAtomically(folder / kHelpFileName, StarterContent(kHelpFileName));
    }
}

}  // namespace kalvane
