#include "batch/sheet_commands.h"

#include <CLI/CLI.hpp>
#include <ctime>
#include <iostream>

#include "batch/line_notice.h"
#include "batch/locked_store.h"
#include "batch/project_choice.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "output/short_table_pages.h"
#include "output/short_table_windows.h"
#include "platform/settings_store.h"

namespace kalvane {
namespace {

/// A printer that lists the texts it is given: number of the sheet, of the paper, place, text.
class TextLister final : public PageTarget {
  public:
    /// The number of the sheet that comes next.
    void StartSheet(int number) {
        if (sheet_ != 0) NewPage();
        sheet_ = number;
    }

    void DrawText(float x, float y, std::string_view text) override {
        std::cout << sheet_ << '\t' << paper_ << '\t' << ShortText(x) << '\t' << ShortText(y) << '\t' << text
                  << '\n';
    }
    void NewPage() override { ++paper_; }
    void DrawLine(float, float, float, float) override {}
    void FillBox(const Box&, PageColour) override {}
    void SetFont(PageFont) override {}
    void EndDocument() override {}
    // The paper and the type of a sheet, whose places depend on neither.
    float Width() const override { return kA4Width; }
    float Height() const override { return kA4Height; }
    float TextWidth(std::string_view) const override { return 0; }
    float TextHeight(std::string_view) const override { return 0; }

  private:
    static constexpr float kA4Width = 11906;
    static constexpr float kA4Height = 16838;

    int sheet_ = 0;
    int paper_ = 1;
};

std::string Today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    constexpr int kFirstYear = 1900;
    return SheetDate(kFirstYear + local.tm_year, 1 + local.tm_mon, local.tm_mday);
}

SheetOrigin Origin(const std::string& projectNumber) {
    const SettingsStore settings(SettingsStore::DefaultFile());
    return {projectNumber, settings.Read(kSettingsApplication, kSectionMain, "DW", ""), Today()};
}

void PrintTable(const ComponentSheet& sheet, int page) {
    for (int row = 1; row <= sheet.rowCount; ++row) {
        std::cout << page << '\t' << row;
        for (int column = 1; column <= SheetTable::kColumns; ++column) {
            std::cout << '\t' << sheet.table.Cell(column, row);
        }
        std::cout << '\n';
    }
}

void PrintLines(const SimpleBuyTable& table, int page) {
    for (const ShortLine& line : LinesOf(table, page)) {
        std::cout << page << '\t' << line.number;
        for (const std::string& field : *line.record) std::cout << '\t' << field;
        std::cout << '\n';
    }
}

void PrintBoxes(const SimpleBuyTable& table, int page) {
    for (const ShortBox& box : BoxesOf(table, page)) {
        std::cout << page << "\tbox\t" << box.picture->key << '\t' << box.picture->drawingNumber << '\t'
                  << box.picture->name << '\t' << box.picture->count << '\t' << box.caption << '\n';
    }
}

}  // namespace

SheetCommands::SheetCommands(CLI::App& application) {
    CLI::App* sheet = Add(application, "sheet", "component sheets");
    CLI::Option* table = sheet->add_flag("--table", table_, "page, row and five cells");
    CLI::Option* print =
        sheet->add_flag("--print", print_, "page, paper, x, y and text of all that is printed");
    table->excludes(print);
    sheet->callback([this] { Sheet(); });
    CLI::App* brief = Add(application, "short", "short component table: its lines, then its drawings");
    brief->callback([this] { Short(); });
}

CLI::App* SheetCommands::Add(CLI::App& application, const char* name, const char* description) {
    CLI::App* command = application.add_subcommand(name, description);
    command->add_option("--folder", folder_, "folder of the stores")->capture_default_str();
    command->add_option("--project", project_, "name of the project")->required();
    command->add_option("--windows", windows_, "places in the list of windows, such as 1,3; all if left out");
    return command;
}

void SheetCommands::Sheet() const {
    if (table_ == print_) throw Error("请给出 --table 或 --print。");
    LockedStore store(folder_, StoreKind::Main);
    const std::string number = ProjectNumber(store.Get(), project_);
    FieldSlots slots;
    const SheetSet sheets(store.Get(), slots, Origin(number), ListWindows(store.Get(), number));
    if (sheets.PageCount() == 0) throw Error("当前工程中没有可打印的门窗！");
    LineNotice notice;
    TextLister lister;
    for (const int page : ChosenPlaces(project_, static_cast<std::size_t>(sheets.PageCount()), windows_)) {
        const WorkedOutSheet sheet = sheets.Sheet(page);
        if (table_) {
            PrintTable(sheet.page, page);
        } else {
            lister.StartSheet(page);
            PaintSheet(lister, store.Get(), sheet, {}, notice);
        }
        for (const std::string& failure : sheet.failures) {
            notice.Show(failure, SheetNumber(page), NoticeIcon::Warning);
        }
    }
}

void SheetCommands::Short() const {
    LockedStore store(folder_, StoreKind::Main);
    const std::vector<WindowEntry> windows = ChosenWindows(store.Get(), project_, windows_);
    if (windows.empty()) throw Error("构件门窗为空！");
    FieldSlots slots;
    const ShortTable made = MakeShortTable(store.Get(), slots, project_, windows);
    LineNotice notice;
    for (const LeftOutWindow& left : made.leftOut) {
        notice.Show(left.name + "（" + left.reason + "）", "没有列入", NoticeIcon::Warning);
    }
    const auto pages = static_cast<int>(made.table.Pages().size());
    if (pages == 0) throw Error("无可购件数据！");
    for (int page = 1; page <= pages; ++page) PrintLines(made.table, page);
    for (int page = 1; page <= pages; ++page) PrintBoxes(made.table, page);
}

}  // namespace kalvane
