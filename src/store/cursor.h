#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/field_value.h"

namespace kalvane {

/// Rows of a select, read when the cursor is made and walked forward. A cursor stays valid when the tables
/// it was read from change.
class Cursor {
  public:
    using Names = std::shared_ptr<const std::vector<std::string>>;

    /// `cells` holds the rows one after the other, each as long as `names`.
    Cursor(Names names, std::vector<FieldValue> cells);

    int RecordCount() const { return rowCount_; }
    int FieldCount() const { return static_cast<int>(names_->size()); }
    const std::string& FieldName(int index) const;

    bool Eof() const { return row_ >= rowCount_; }
    void MoveFirst() { row_ = 0; }
    void MoveNext() { ++row_; }

    /// A field of the current row, by position from 0 or by name without regard to case. Throws StoreError
    /// past the last row or when there is no such field.
    const FieldValue& Field(int index) const;
    const FieldValue& Field(std::string_view name) const;

    /// Position of a field, for loops; throws StoreError when there is no such field.
    int FieldIndex(std::string_view name) const;

  private:
    Names names_;
    std::vector<FieldValue> cells_;  // row after row
    int rowCount_ = 0;
    int row_ = 0;
};

}  // namespace kalvane
