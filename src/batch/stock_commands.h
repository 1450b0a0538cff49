#pragma once

#include <string>
#include <vector>

#include "warehouse/note_layout.h"

namespace CLI {
class App;
}

namespace kalvane {

/// The commands "stock in", "stock out", "stock query" and "stock clear" of kalvane-batch, on the warehouse
/// of a folder.
class StockCommands {
  public:
    /// Adds them to `application`, which must not outlive this.
    explicit StockCommands(CLI::App& application);
    StockCommands(const StockCommands&) = delete;
    StockCommands& operator=(const StockCommands&) = delete;

  private:
    CLI::App* Add(CLI::App& stock, const char* name, const char* description);
    void AddNote(CLI::App& command);
    /// Confirms a note and prints its number.
    void Confirm(NoteKind kind) const;
    /// Prints a table's heading and rows.
    void Query() const;
    void Clear() const;

    std::string folder_ = ".";
    std::vector<std::string> sets_;   ///< COLUMN=VALUE of the head
    std::vector<std::string> lines_;  ///< the columns of a line, parted by tabs
    std::string table_;
    std::string field_;
    std::string value_;
};

}  // namespace kalvane
