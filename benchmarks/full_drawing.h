#pragma once

#include <random>

#include "drawing/cpictire.h"
#include "page/paint_target.h"
#include "platform/notice.h"

namespace kalvane::bench {

class SilentNotice final : public Notice {
  public:
    void Show(const std::string&, const std::string&, NoticeIcon) override {}
};

/// The largest drawing: 361 items of each kind at grid points spread over the frame, each within a box of a
/// fifth of it, as the parts of a window are.
inline CPictire FullDrawing(Notice& notice) {
    std::mt19937 random(1);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    int column = 0;
    int row = 0;
    const auto point = [&] {
        return Point{static_cast<float>((column + upTo(16)) * 118),
                     static_cast<float>((row + upTo(12)) * 123)};
    };
    CPictire picture(notice);
    for (int i = 0; i < 361; ++i) {
        column = upTo(64);
        row = upTo(52);
        picture.AddLine({point(), point()});
        picture.AddRec({point(), point()});
        picture.AddDir({point(), point()});
        picture.AddDim({point(), point(), point()});
        picture.AddString({point(), "h" + std::to_string(i)});
        picture.AddArc({point(), point(), point()});
    }
    return picture;
}

}  // namespace kalvane::bench
