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
    /// Opens an existing store. Throws StoreError when the file is missing or was made by a newer version,
    /// StoreDamage when it is damaged or no store of ours; the file then stays as it was. A file that is only
    /// read may come from anywhere, so it is opened after an integrity check.
    Connection(const std::filesystem::path& file, StoreKind kind);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    /// Runs an insert, update or delete. Values are converted by the declared type of their column.
    void Execute(std::string_view sql);

    /// Runs a select and reads its rows.
    Cursor OpenCursor(std::string_view sql);

    /// Reads the whole file; throws StoreDamage when something in it does not fit together.
    void CheckIntegrity();

    const std::filesystem::path& File() const;

    /// "Provider=...;Data Source=" followed by the file's full path.
    std::string ConnectionText() const;

  private:
    friend class CommandScope;
    friend class TableWriter;
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

}  // namespace kalvane
