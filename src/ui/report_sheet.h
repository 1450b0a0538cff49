#pragma once

#include "ui/page_document.h"

namespace kalvane {

/// The sheet of reports and of what a customer signs: upright A4, with margins that every printer can reach.
inline constexpr PageSetup kReportSheet{QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 12}};

/// The small one: A5 on its long side.
inline constexpr PageSetup kSmallReportSheet{QPageSize::A5, QPageLayout::Landscape, {12, 10, 12, 8}};

}  // namespace kalvane
