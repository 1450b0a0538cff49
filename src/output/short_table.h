#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "page/page_target.h"
#include "platform/notice.h"
#include "store/connection.h"

namespace kalvane {

/// One line: size, 樘数, then length and count of each of the six key profiles.
using BuyRecord = std::array<std::string, 14>;

/// The names of the key profiles, in the order of a line and in capitals.
inline constexpr std::array kKeyNames = {"框B", "框H", "扇B", "扇H", "固定框B", "固定框H"};

/// A drawing at the foot of a page.
struct BuyPicture {
    std::string key;            ///< 门窗.编号 of the window type
    std::string drawingNumber;  ///< 图号
    std::string name;           ///< 名称 of the window type
    std::int16_t count = 0;     ///< lines of the page that it covers
};

/// First and last line and box of a page, counted from 0.
struct BuyPage {
    std::int16_t firstLine = 0;
    std::int16_t lastLine = 0;
    std::int16_t firstBox = 0;
    std::int16_t lastBox = 0;
};

/// The short component table: the cutting list of a group of plain windows at one look, a line for each
/// window, on pages of up to 18 lines and 4 drawings.
class SimpleBuyTable {
  public:
    /// Entries 1 to 14 are a line's fields, 15 the window type's number, 16 its drawing, 17 its name.
    using Fields = std::array<std::string, 18>;

    std::string ProjectName;

    /// How many pages there are, as text.
    const std::string& PageCount() const { return pageCount_; }

    /// Adds a line; the page ends with it when it has 18 lines or 4 boxes. A line of the window type of the
    /// page's last box falls to that box, any other opens a box. Throws NumericError (overflow) when the
    /// lines are more than 16 bits can number, with nothing changed.
    void AddRecord(const Fields& fields);
    /// Ends the last page.
    void AddRecordEnd();
    void ClearAll();

    // A page number outside of the table paints nothing. The drawings come from `connection`; they throw as
    // MCPicture::OpenFileEX.

    /// Paints a page, from 1, on a surface that shows it.
    void OutToObject(PageTarget& surface, Connection& connection, Notice& notice, int page) const;
    /// Prints a page as one document.
    void PrintPage(PageTarget& target, Connection& connection, Notice& notice, int page) const;
    /// Prints all pages as one document.
    void PrintPageAll(PageTarget& target, Connection& connection, Notice& notice) const;

    const std::vector<BuyRecord>& Records() const { return records_; }
    const std::vector<BuyPicture>& Pictures() const { return pictures_; }
    const std::vector<BuyPage>& Pages() const { return pages_; }  ///< the last has no end before AddRecordEnd

  private:
    static constexpr int kMostLines = 18;
    static constexpr int kMostBoxes = 4;

    std::vector<BuyRecord> records_;
    std::vector<BuyPicture> pictures_;
    std::vector<BuyPage> pages_;
    std::string pageCount_ = "0";
    int lines_ = 0;  ///< on the page under construction
    int boxes_ = 0;
};

}  // namespace kalvane
