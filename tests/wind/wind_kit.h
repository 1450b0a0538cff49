#pragma once

#include <fstream>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "support/paths.h"
#include "wind/full_form.h"
#include "wind/sliding_form.h"

namespace kalvane::test {

using Sets = std::initializer_list<std::pair<const char*, const char*>>;

inline void SetAll(FormTexts& texts, Sets sets) {
    for (const auto& [name, text] : sets) texts.Set(name, text);
}

/// A sash of 750 × 1400 with everything else as it is preset.
inline FormTexts Sash(Sets sets = {}) {
    FormTexts texts(SlidingBoxes());
    SetAll(texts, {{"txtBLCD", "650"}, {"txtBLGD", "1250"}, {"txtSKD", "750"}, {"txtSGD", "1400"}});
    SetAll(texts, sets);
    return texts;
}

/// The preset window at 30 m over a B terrain.
inline FullTexts Window(Sets base = {}, Sets detail = {}) {
    FullTexts texts;
    SetAll(texts.base, {{"Combo1", "一般高层建筑物"}, {"Combo2", "B类"}, {"Combo3", "30"}});
    SetAll(texts.base, base);
    SetAll(texts.detail, detail);
    return texts;
}

/// A report worked by hand, line by line.
inline std::vector<std::string> GoldenLines(const char* name) {
    std::ifstream file(SourceFolder() / "tests/wind/golden" / name);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
}

}  // namespace kalvane::test
