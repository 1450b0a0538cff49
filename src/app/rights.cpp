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

/// Character of a UTF-8 text by position; only its first byte is of interest.
char CharacterAt(std::string_view text, std::size_t position) {
    for (const char byte : text) {
        const bool continues = (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
        if (continues) continue;
        if (position == 0) return byte;
        --position;
    }
    return '\0';
}

}  // namespace

std::string_view RightCaption(Right right) {
    return kCaptions[static_cast<std::size_t>(right)];
}

bool IsGranted(std::string_view userAuth, Right right) {
    return CharCount(userAuth) == kRightCount &&
           CharacterAt(userAuth, static_cast<std::size_t>(right)) == '1';
}

}  // namespace kalvane
