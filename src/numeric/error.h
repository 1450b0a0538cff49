#pragma once

#include <stdexcept>
#include <string>

namespace kalvane {

/// Anything that data or the outside world can cause. `what()` is UTF-8 Chinese text for the operator.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Arithmetic or conversion that has no answer: overflow of a fixed width, division by zero, a text that
/// is no number, an index beyond a fixed array.
class NumericError : public Error {
  public:
    using Error::Error;

    static NumericError Overflow() { return NumericError("溢出"); }
    static NumericError DivisionByZero() { return NumericError("除数为零"); }
    static NumericError OutOfBounds() { return NumericError("下标越界"); }
    static NumericError TypeMismatch() { return NumericError("类型不匹配"); }
    static NumericError NullUse() { return NumericError("无效使用 Null"); }
};

/// A formula text whose evaluation would never end.
class FormulaError : public Error {
  public:
    using Error::Error;
};

/// The store refused a statement, a value or a file.
class StoreError : public Error {
  public:
    using Error::Error;
};

/// A value does not fit the column it was to be written to.
class ColumnError : public StoreError {
  public:
    ColumnError(std::string column, const std::string& text) : StoreError(text), column_(std::move(column)) {}

    const std::string& Column() const { return column_; }

  private:
    std::string column_;
};

/// A store file is damaged, or no store at all.
class StoreDamage : public StoreError {
  public:
    using StoreError::StoreError;
};

/// A file could not be read or written, or its content cannot be represented.
class FileError : public Error {
  public:
    using Error::Error;
};

/// A text holds a character that the file's code page does not.
class CodePageError : public FileError {
  public:
    using FileError::FileError;
};

}  // namespace kalvane
