#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "store/cursor.h"
#include "store/schema.h"

namespace kalvane {

/// An open store file. Statements are written in the store's own dialect (see dialect.h), one per call; a
/// refused one throws StoreError with a text for the operator and changes nothing. A connection is used by
/// one thread at a time.
class Connection {
  public:
    /// Opens an existing store. Throws StoreError when the file is missing, is no store of ours or was
    /// made by a newer version; the file then stays as it was.
    Connection(const std::filesystem::path& file, StoreKind kind);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    /// Runs an insert, update or delete. Values are converted by the declared type of their column.
    void Execute(std::string_view sql);

    /// Runs a select and reads its rows.
    Cursor OpenCursor(std::string_view sql);

    const std::filesystem::path& File() const;

    /// "Provider=...;Data Source=" followed by the file's full path.
    std::string ConnectionText() const;

  private:
    friend class CommandScope;
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

}  // namespace kalvane
