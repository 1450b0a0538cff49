#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

class Connection;
class CPictire;

// The drawing library: the index 图 and the rows of six primitive tables, which name their drawing in Bn.
// Drawing numbers are whole numbers carried as text. Every routine throws StoreError when the store refuses
// a statement.

/// A row of 图.
struct DrawingEntry {
    std::string number;
    std::string name;
};

/// All drawings in the order of the table; a Null name comes as empty text.
std::vector<DrawingEntry> ListDrawings(Connection& connection);

/// The number after the highest one; "1" when the library is empty.
std::string NextDrawingNumber(Connection& connection);

bool DrawingExists(Connection& connection, std::string_view number);

/// Adds the index row and the primitives of a new drawing as one command.
void SaveNewDrawing(Connection& connection, std::string_view number, std::string_view name,
                    const CPictire& picture);

/// Takes a drawing out of the index and its primitives out of their tables, as one command. Its arcs stay,
/// until a drawing is saved under that number. Window types that use the drawing are not checked.
void DeleteDrawing(Connection& connection, std::string_view number);

/// Replaces the primitive rows of a number by the items of `picture`, as one command. When a statement is
/// refused, what was executed before it stays.
void SavePrimitives(Connection& connection, std::string_view number, const CPictire& picture);

/// Adds the primitive rows of a number to `picture`. Throws NumericError for a coordinate that is Null; what
/// was read before stays in `picture`.
void LoadPrimitives(Connection& connection, std::string_view number, CPictire& picture);

}  // namespace kalvane
