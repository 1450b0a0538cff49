#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"

namespace kalvane {

/// A row of the user table.
struct UserAccount {
    std::string name;      ///< at most 8 characters
    std::string password;  ///< scrambled
    std::string rights;    ///< twelve characters, "1" for granted (app/rights.h)
};

/// The one user who cannot be deleted; compared exactly.
inline constexpr std::string_view kAdministrator = "Admin";

// All take the open user store and throw StoreError, also for a name with a single quote, which breaks the
// statement, and for a text that is longer than its column.

/// In the order of the store.
std::vector<UserAccount> LoadUserAccounts(Connection& users);

/// Adds a user; `password` is in clear and is stored scrambled. Nothing, and no change, when the name exists.
std::optional<UserAccount> AddUserAccount(Connection& users, const std::string& name,
                                          std::string_view password, const std::string& rights);

void ChangeUserRights(Connection& users, const std::string& name, const std::string& rights);

void DeleteUserAccount(Connection& users, const std::string& name);

/// Stores a new password, given in clear.
void ChangeUserPassword(Connection& users, const std::string& name, std::string_view password);

}  // namespace kalvane
