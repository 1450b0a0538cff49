#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "session/app_state.h"
#include "store/connection.h"

namespace kalvane {

/// Names of the users in the order of the store. Throws StoreError.
std::vector<std::string> UserNames(Connection& users);

/// Looks the user up with the scrambled password. When there is such a row the login, the scrambled password
/// and the rights go to `state`, and the result is true; else `state` stays as it was. Throws StoreError,
/// also for a name with a single quote, which breaks the statement.
bool LogIn(AppState& state, Connection& users, std::string_view name, std::string_view password);

}  // namespace kalvane
