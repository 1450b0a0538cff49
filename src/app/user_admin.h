#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/app_state.h"
#include "store/connection.h"

namespace kalvane {

/// A row of the user store.
struct User {
    std::string name;
    std::string scrambledPassword;
    std::string rights;  ///< "1" or "0" for each right in order
};

// Names stand between quotes in the statements, and a quote in one breaks its statement. Every routine throws
// StoreError when the store refuses.

/// All users in the order of the store.
std::vector<User> ListUsers(Connection& users);

bool UserExists(Connection& users, std::string_view name);

/// Adds a user with the password scrambled, and returns the row.
User AddUser(Connection& users, std::string_view name, std::string_view password, std::string_view rights);

void UpdateRights(Connection& users, std::string_view name, std::string_view rights);

void DeleteUser(Connection& users, std::string_view name);

/// True for the one user that cannot be deleted; the name is compared exactly.
bool IsAdministrator(std::string_view name);

/// True when the password is that of the login. The one that was compared then counts for the whole run,
/// whatever has become of it since.
bool IsLoginPassword(const AppState& state, std::string_view password);

/// Gives the logged-in user a new password.
void ChangePassword(const AppState& state, Connection& users, std::string_view password);

}  // namespace kalvane
