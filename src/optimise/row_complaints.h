#pragma once

#include <string>

namespace kalvane {

/// Collects what is wrong with the rows of a text from outside, for one message.
class RowComplaints {
  public:
    /// Lines count from 1.
    void Add(int line, const std::string& what);

    bool IsEmpty() const { return count_ == 0; }

    /// All complaints, a line each; of many, the first ones and how many there are.
    std::string Message() const;

  private:
    std::string lines_;
    int count_ = 0;
};

}  // namespace kalvane
