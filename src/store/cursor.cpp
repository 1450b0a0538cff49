#include "store/cursor.h"

#include "numeric/assertion.h"
#include "numeric/error.h"
#include "numeric/text.h"

namespace kalvane {

Cursor::Cursor(Names names, std::vector<FieldValue> cells)
    : names_(std::move(names)), cells_(std::move(cells)) {
    KALVANE_ASSERT(!names_->empty() && cells_.size() % names_->size() == 0);
    rowCount_ = static_cast<int>(cells_.size() / names_->size());
}

const std::string& Cursor::FieldName(int index) const {
    KALVANE_ASSERT(index >= 0 && index < FieldCount());
    return (*names_)[static_cast<std::size_t>(index)];
}

const FieldValue& Cursor::Field(int index) const {
    if (Eof()) throw StoreError("没有当前记录。");
    if (index < 0 || index >= FieldCount()) throw StoreError("记录没有这个字段。");
    return cells_[static_cast<std::size_t>(row_) * names_->size() + static_cast<std::size_t>(index)];
}

const FieldValue& Cursor::Field(std::string_view name) const {
    return Field(FieldIndex(name));
}

int Cursor::FieldIndex(std::string_view name) const {
    for (int index = 0; index < FieldCount(); ++index) {
        if (EqualIgnoringCase(FieldName(index), name)) return index;
    }
    throw StoreError("记录没有字段“" + std::string(name) + "”。");
}

}  // namespace kalvane
