#include "app/rights.h"

namespace kalvane {
namespace {

std::string Granted(std::string_view userAuth) {
    std::string captions;
    for (int i = 0; i < kRightCount; ++i) {
        const auto right = static_cast<Right>(i);
        if (IsGranted(userAuth, right)) captions.append(RightCaption(right)).append(" ");
    }
    return captions;
}

TEST(Rights, GrantByPosition) {
    const char* const cases[][2] = {
        {"000111001011", "工程管理 材料优化 风压校核 更改背景 更改密码 仓库管理 "},
        {"111111111111",
         "材料库 绘制图 窗型设计 工程管理 材料优化 风压校核 备份/恢复 设置 更改背景 用户管理 更改密码 "
         "仓库管理 "},
        {"11111111111", ""},    // eleven characters
        {"1111111111111", ""},  // thirteen
        {"", ""},
        {"1 x2yes00 01", "材料库 仓库管理 "},  // anything but "1" refuses
        {"1中000000000 1", ""},                // thirteen characters
        {"中10000000000", "绘制图 "},          // positions are characters, not bytes
        {"中111111111", ""},                   // twelve bytes, ten characters
    };
    for (const auto& [userAuth, granted] : cases) EXPECT_EQ(Granted(userAuth), granted) << userAuth;
}

}  // namespace
}  // namespace kalvane
