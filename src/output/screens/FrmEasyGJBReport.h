#pragma once

#include <memory>
#include <span>

#include "output/short_table_windows.h"
#include "ui/page_document.h"
#include "ui/screen.h"

namespace kalvane {

class PagePicture;
class PageTurner;

/// Shows the short component table page by page, prints it and saves it as PDF.
class FrmEasyGJBReport : public Screen {
    Q_OBJECT

  public:
    /// `made` has one page at least.
    FrmEasyGJBReport(ShortTable made, QWidget* parent);

  private:
    void ShowPage();
    void PrintPage();
    void PrintAll();
    void SavePdf();

    const ShortTable made_;
    std::shared_ptr<const PageDocument> document_;
    PageTurner* turner_;
    PagePicture* picture_;
};

/// Shows the short table of those windows, or says that there is nothing to show.
void ShowShortTable(std::span<const WindowEntry> windows, const std::string& projectName, QWidget* parent);

}  // namespace kalvane
