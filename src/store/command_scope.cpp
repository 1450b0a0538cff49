#include "store/command_scope.h"

#include "numeric/error.h"
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
    if (IsUndone()) throw StoreError("磁盘读写失败，数据没有写入。");
    try {
        store.Run("COMMIT");
    } catch (const StoreError&) {
        if (sqlite3_get_autocommit(store.database) == 0) store.Run("ROLLBACK");
        throw;
    }
}

bool CommandScope::IsUndone() const {
    // The engine has then ended its transaction by itself.
    return sqlite3_get_autocommit(connection_.implementation_->database) != 0;
}

void InCommand(Connection& connection, const std::function<void()>& command) {
    CommandScope scope(connection);
    command();
    scope.Finish();
}

}  // namespace kalvane
