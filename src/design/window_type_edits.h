#pragma once

#include <string>
#include <string_view>

#include "store/connection.h"

namespace kalvane {

// Changes of the tree of window types. Numbers are 编号 of the row that is meant, carried as text. Each
// routine is one command on the store; a failure is thrown as StoreError, and what was executed before it
// stays.

// Each adds a row and returns its number.
std::string AddWindowMaker(Connection& connection, std::string_view name);
std::string AddWindowSeries(Connection& connection, std::string_view maker, std::string_view name);
/// `drawing` is a number of the library.
std::string AddWindowType(Connection& connection, std::string_view series, std::string_view name,
                          std::string_view drawing);

void RenameWindowMaker(Connection& connection, std::string_view maker, std::string_view name);
void RenameWindowSeries(Connection& connection, std::string_view series, std::string_view name);
void UpdateWindowType(Connection& connection, std::string_view type, std::string_view name,
                      std::string_view drawing);

// Each deletes a row with all below it: a maker its series, a series its types, a type its formula rows.
// Windows of projects keep the number of a type that is gone.
void DeleteWindowMaker(Connection& connection, std::string_view maker);
void DeleteWindowSeries(Connection& connection, std::string_view series);
void DeleteWindowType(Connection& connection, std::string_view type);

/// Copies a type with its formula rows into a series and returns the number of the copy. The drawing is
/// shared. A Null text becomes an empty one.
std::string CopyWindowType(Connection& connection, std::string_view type, std::string_view series);

void MoveWindowType(Connection& connection, std::string_view type, std::string_view series);

}  // namespace kalvane
