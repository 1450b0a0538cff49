#include "app/rights.h"

#include <array>
#include <string>

#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr std::array<std::string_view, kRightCount> kCaptions = {
    "材料库",    "绘制图", "窗型设计", "工程管理", "材料优化", "风压校核",
    "备份/恢复", "设置",   "更改背景", "用户管理", "更改密码", "仓库管理",
};

}  // namespace

std::string_view RightCaption(Right right) {
    return kCaptions[static_cast<std::size_t>(right)];
}

bool IsGranted(std::string_view userAuth, Right right) {
    return CharCount(userAuth) == kRightCount &&
           MidChars(userAuth, static_cast<std::size_t>(right) + 1, 1) == "1";
}

}  // namespace kalvane
