#pragma once

#include <functional>

#include "store/connection.h"

namespace kalvane {

/// The statements of one command, written to the disk as one step. What the operator sees is still
/// statement by statement: when a later one fails, the earlier ones stay. But a process killed in the
/// middle leaves the store as it was before the command. Scopes may nest; the outermost commits.
class CommandScope {
  public:
    explicit CommandScope(Connection& connection);
    CommandScope(const CommandScope&) = delete;
    CommandScope& operator=(const CommandScope&) = delete;

    /// Ends the scope as after a failure: what was executed stays.
    ~CommandScope();

    /// Commits what was executed. Throws StoreError when the disk refuses, or has refused before; nothing is
    /// kept then.
    void Finish();

    /// True when a disk failure has undone what was executed. Nothing more may be executed in the scope then.
    bool IsUndone() const;

  private:
    Connection& connection_;
    bool open_ = true;
};

/// Runs `command` in a scope. A failure inside it goes on to the caller after what came before it has been
/// committed.
void InCommand(Connection& connection, const std::function<void()>& command);

}  // namespace kalvane
