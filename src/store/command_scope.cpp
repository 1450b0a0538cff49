#include "store/command_scope.h"

#include "platform/error.h"
#include "store/connection_implementation.h"

namespace kalvane {

CommandScope::CommandScope(Connection& connection) : connection_(connection) {
    Connection::Implementation& store = *connection_.implementation_;
    if (store.scopeDepth == 0) store.Run("BEGIN");
    ++store.scopeDepth;
}

CommandScope::~CommandScope() {
    if (!open_) return;
    try {
        Finish();
    } catch (const StoreError&) {
        // The failure that ends this scope is already on its way to the operator.
    }
}

void CommandScope::Finish() {
    Connection::Implementation& store = *connection_.implementation_;
    open_ = false;
    if (--store.scopeDepth > 0) return;
    // A disk failure inside the scope has already ended the engine's transaction and undone it.
    if (sqlite3_get_autocommit(store.database) != 0) return;
    try {
        store.Run("COMMIT");
    } catch (const StoreError&) {
        if (sqlite3_get_autocommit(store.database) == 0) store.Run("ROLLBACK");
        throw;
    }
}

void InCommand(Connection& connection, const std::function<void()>& command) {
    CommandScope scope(connection);
    command();
    scope.Finish();
}

}  // namespace kalvane
