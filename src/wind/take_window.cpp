#include "wind/take_window.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "numeric/number.h"
#include "numeric/text.h"
#include "wind/sliding_form.h"
#include "wind/wind_tables.h"

namespace kalvane {
namespace {

using Pane = ProjectWindow::Pane;
using Panes = std::vector<Pane>;

std::string SizeText(double size) {
    return size > 0 ? ShortText(size) : std::string();
}

/// The kind of glass a panel's name tells, as its place in the lists. Of a pane with several the weaker
/// counts.
std::size_t GlassNamed(std::string_view name) {
    constexpr std::pair<std::string_view, std::size_t> kWords[] = {
        {"夹丝", 5}, {"压花", 6}, {"夹层", 3}, {"中空", 4}, {"半钢化", 1}, {"防火", 7}, {"钢化", 2}};
    for (const auto& [word, glass] : kWords) {
        if (name.find(word) != std::string_view::npos) return glass;
    }
    return 0;
}

/// The first number in a panel's name, "5" of "中空玻璃5+9A+5".
std::string ThicknessNamed(std::string_view name) {
    constexpr std::string_view kDigits = "0123456789";
    const std::size_t first = name.find_first_of(kDigits);
    if (first == std::string_view::npos) return {};
    return std::string(name.substr(first, name.find_first_not_of(kDigits, first) - first));
}

double Area(const Pane& pane) {
    return pane.width * pane.height;
}

/// Null when there is none.
const Pane* Largest(const Panes& panes) {
    const auto largest = std::max_element(panes.begin(), panes.end(),
                                          [](const Pane& a, const Pane& b) { return Area(a) < Area(b); });
    return largest == panes.end() ? nullptr : &*largest;
}

/// The label that begins with that letter in either case and is nearest to a size of a pane.
double NearestLabel(const ProjectWindow& window, char letter, double size) {
    double nearest = 0;
    for (const ProjectWindow::Label& label : window.labels) {
        if (!UpperCase(label.name).starts_with(letter)) continue;
        if (nearest == 0 || std::fabs(label.value - size) < std::fabs(nearest - size)) nearest = label.value;
    }
    return nearest;
}

double Count(const Panes& panes) {
    double count = 0;
    for (const Pane& pane : panes) count += pane.count;
    return count;
}

void Choose(FormTexts& texts, std::string_view list, std::size_t place) {
    for (const FormBox& box : texts.Boxes()) {
        if (box.name == list) texts.Set(list, box.choices[place]);
    }
}

}  // namespace

TakeNotes TakeSlidingWindow(FormTexts& texts, const ProjectWindow& window) {
    TakeNotes notes;
    Panes inSash;
    Panes beside;
    for (const Pane& pane : window.panes) {
        const bool fits = pane.width <= window.sashWidth && pane.height <= window.sashHeight;
        (fits ? inSash : beside).push_back(pane);
    }
    if (inSash.empty()) std::swap(inSash, beside);  // no sash is known
    const double sashes = Count(inSash);
    if (window.sashWidth == 0 || window.sashHeight == 0) {
        notes.emplace_back("窗型中没有名称为“扇B”“扇H”的型材，扇宽度和扇高度请自己填写。");
    } else if (sashes != 2 && sashes != 3) {
        notes.push_back("这樘窗有 " + ShortText(sashes) + " 扇，报告只有二扇和三扇，按二扇校核。");
    }

    const bool hasTopLight = !beside.empty();
    const bool hasMullion = Count(beside) > 1;
    Choose(texts, "cmbMCLX", (sashes == 3 ? 3U : 0U) + (hasMullion ? 2U : hasTopLight ? 1U : 0U));
    const Pane* glass = Largest(inSash);
    const Pane* light = Largest(beside);
    const bool hasSize = window.width > 0 && window.height > 0;
    texts.Set("txtGCMC", window.project);
    texts.Set("txtMCBH", window.mark);
    texts.Set("txtMCCC", hasSize ? ShortText(window.width) + "*" + ShortText(window.height) : std::string());
    texts.Set("txtSKD", SizeText(window.sashWidth));
    texts.Set("txtSGD", SizeText(window.sashHeight));
    texts.Set("txtLZKD", light == nullptr ? "" : SizeText(NearestLabel(window, 'B', light->width)));
    texts.Set("txtLZGD", light == nullptr ? "" : SizeText(NearestLabel(window, 'H', light->height)));
    texts.Set("txtBLCD", glass == nullptr ? "" : SizeText(glass->width));
    texts.Set("txtBLGD", glass == nullptr ? "" : SizeText(glass->height));
    texts.Set("txtBLHD", glass == nullptr ? "" : ThicknessNamed(glass->name));
    Choose(texts, "cmbBLZL", glass == nullptr ? 0 : GlassNamed(glass->name));
    if (light != nullptr && Area(*light) > Area(*glass)) {
        notes.push_back("亮子的玻璃 " + SizeText(light->width) + "×" + SizeText(light->height) +
                        " 比扇的大，报告只校核扇的玻璃，请另外校核。");
    }
    return notes;
}

TakeNotes TakeFullWindow(FullTexts& texts, const ProjectWindow& window) {
    TakeNotes notes;
    const bool hasBoth = !window.project.empty() && !window.mark.empty();
    texts.base.Set("Text1", window.project + (hasBoth ? " " : "") + window.mark);
    FormTexts& detail = texts.detail;
    const Pane* glass = Largest(window.panes);
    detail.Set("Text1", SizeText(window.width));
    detail.Set("Text2", SizeText(window.height));
    detail.Set("Text11", glass == nullptr ? "" : SizeText(glass->width));
    detail.Set("Text12", glass == nullptr ? "" : SizeText(glass->height));
    detail.Set("Text7", glass == nullptr ? "" : ThicknessNamed(glass->name));
    detail.Set("Text6", glass == nullptr ? "" : glass->name);
    Choose(detail, "Combo1", glass == nullptr ? 0 : GlassNamed(glass->name));
    const std::string ratio = EdgeRatio(detail.Text("Text11"), detail.Text("Text12"));
    detail.Set("Text5", ratio);
    if (!ratio.empty()) Choose(detail, "Combo2", NearestBendingRow(Val(ratio)));
    if (glass == nullptr) notes.emplace_back("窗型中没有板材，玻璃尺寸请自己填写。");
    return notes;
}

}  // namespace kalvane
