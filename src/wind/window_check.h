#pragma once

#include <string>
#include <vector>

#include "wind/form_texts.h"
#include "wind/full_form.h"
#include "wind/recheck.h"

namespace kalvane {

/// The finished check of one window: its report, and what is worked out beside it.
struct WindowCheck {
    struct Verdict {
        std::string check;
        bool passes;
    };

    bool isSliding = false;  ///< a sliding window's report, else the full one
    std::string window;      ///< project and mark, as far as they were typed
    std::vector<std::string> lines;
    std::vector<Verdict> verdicts;  ///< of the report
    Recheck recheck;
};

/// Checks what stands on the screens, which must have passed SlidingRefusal or FullRefusal. Throws
/// NumericError when a report has no answer.
WindowCheck CheckSlidingWindow(const FormTexts& texts);
WindowCheck CheckFullWindow(const FullTexts& texts);

/// Lines as one text, each ended by CR LF.
std::string JoinedLines(const std::vector<std::string>& lines);

}  // namespace kalvane
