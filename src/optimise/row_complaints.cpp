#include "optimise/row_complaints.h"

namespace kalvane {
namespace {
/// A message box with more lines than that does not fit the screen.
constexpr int kMostLines = 20;
}  // namespace

void RowComplaints::Add(int line, const std::string& what) {
    if (++count_ <= kMostLines) lines_ += "\n第 " + std::to_string(line) + " 行：" + what;
}

std::string RowComplaints::Message() const {
    std::string text = "有 " + std::to_string(count_) + " 行没有加入：" + lines_;
    if (count_ > kMostLines) text += "\n……";
    return text;
}

}  // namespace kalvane
