#include "wind/window_check.h"

#include "wind/full_check.h"
#include "wind/full_recheck.h"
#include "wind/full_report.h"
#include "wind/sliding_check.h"
#include "wind/sliding_recheck.h"
#include "wind/sliding_report.h"

namespace kalvane {

WindowCheck CheckSlidingWindow(const FormTexts& texts) {
    const SlidingNumbers numbers = CheckSliding(texts);
    const std::string& project = texts.Text("txtGCMC");
    const std::string& mark = texts.Text("txtMCBH");
    return {true,
            project + (project.empty() || mark.empty() ? "" : " ") + mark,
            SlidingReport(texts, numbers),
            {{"玻璃面积", numbers.glassPasses}, {"型钢挠度", numbers.steelPasses}},
            RecheckSliding(texts, numbers)};
}

WindowCheck CheckFullWindow(const FullTexts& texts) {
    const FullLoad load = FindFullLoad(texts.base);
    const FullNumbers numbers = CheckFull(load, texts.detail);
    return {false,
            texts.base.Text("Text1"),
            FullReport(texts, load, numbers),
            {{"玻璃面积", numbers.area.passes},
             {"弯曲应力", numbers.bending.passes},
             {"年温度应力", numbers.temperature.passes},
             {"玻璃挠度", numbers.deflection.passes},
             {"横框正应力", numbers.transomBending.passes},
             {"立框正应力", numbers.mullionBending.passes},
             {"横框剪应力", numbers.transomShear.passes},
             {"立框剪应力", numbers.mullionShear.passes}},
            RecheckFull(texts, load, numbers)};
}

std::string JoinedLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

}  // namespace kalvane
