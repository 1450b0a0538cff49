#pragma once

#include <string>
#include <vector>

#include "output/short_table.h"

namespace kalvane {

/// A line of the table on its page.
struct ShortLine {
    int number = 0;  ///< on the page, from 1
    const BuyRecord* record = nullptr;
};

/// A drawing at the foot of a page.
struct ShortBox {
    const BuyPicture* picture = nullptr;
    std::string caption;  ///< "3~7为:" and the name of the type, with the lines' numbers on the page
};

// The lines and the boxes of a page, from 1. They stay valid as long as the table is not changed.
std::vector<ShortLine> LinesOf(const SimpleBuyTable& table, int page);
std::vector<ShortBox> BoxesOf(const SimpleBuyTable& table, int page);

}  // namespace kalvane
