#include "wind/window_run.h"

#include "numeric/error.h"
#include "wind/sliding_form.h"
#include "wind/take_window.h"

namespace kalvane {
namespace {

/// `check` has the window's texts refused, or gives its report.
template <typename Texts, typename Take, typename Refuse, typename Check>
CheckRun Run(const Texts& site, const std::vector<ProjectWindow>& windows, Take take, Refuse refuse,
             Check check) {
    CheckRun run;
    for (const ProjectWindow& window : windows) {
        Texts texts = site;
        std::string reason;
        try {
            const TakeNotes notes = take(texts, window);
            if (const std::optional<Refusal> refusal = refuse(texts)) {
                reason = refusal->message;
            } else {
                run.checks.push_back(check(texts));
                auto& warnings = run.checks.back().recheck.warnings;
                warnings.insert(warnings.end(), notes.begin(), notes.end());
            }
        } catch (const NumericError& failure) {
            reason = failure.what();
        }
        if (!reason.empty()) run.skipped.push_back(window.mark + "：" + reason);
    }
    return run;
}

}  // namespace

CheckRun RunSlidingChecks(const FormTexts& site, const std::vector<ProjectWindow>& windows) {
    return Run(site, windows, TakeSlidingWindow, SlidingRefusal, CheckSlidingWindow);
}

CheckRun RunFullChecks(const FullTexts& site, const std::vector<ProjectWindow>& windows) {
    return Run(
        site, windows, TakeFullWindow, [](const FullTexts& texts) { return FullRefusal(texts.base); },
        CheckFullWindow);
}

}  // namespace kalvane
