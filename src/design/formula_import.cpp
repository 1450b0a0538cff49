#include "design/formula_import.h"

#include <stdlib.h>

#include <optional>
#include <unordered_set>

#include "design/formula_grid.h"
#include "drawing/drawing_library.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "platform/files.h"
#include "store/command_scope.h"
#include "store/helpers.h"
#include "store/store_files.h"

namespace kalvane {
namespace {

/// Walks through the rows of a sheet and says of each what it is.
class GridWalk {
  public:
    explicit GridWalk(const SheetTexts& sheet) : sheet_(sheet) {}

    /// Goes to the next row; false at the end of the grid.
    bool Next() {
        ++row_;
        const std::string& first = Text(0);
        if (first.empty()) return false;
        isTypeHead_ = IsTypeHead(first);
        const std::optional<MaterialClass> heading = ClassOfHeading(first);
        isHeading_ = heading.has_value();
        if (isTypeHead_) section_.reset();
        if (isHeading_) section_ = heading;
        return true;
    }

    int Row() const { return row_; }
    bool IsHead() const { return isTypeHead_; }
    bool IsFormulaRow() const { return !isTypeHead_ && !isHeading_; }
    /// The class of the rows here; nothing before the first headings of a type.
    const std::optional<MaterialClass>& Section() const { return section_; }
    /// Columns from 0.
    const std::string& Text(std::size_t column) const {
        return sheet_.Cell(row_, static_cast<int>(column) + 1);
    }

    std::string TypeName() const {
        const std::string name(MidChars(Text(0), CharCount(kTypeHead) + 1));
        return name.empty() ? "-" : name;
    }
    std::string Drawing() const { return Text(1).empty() ? "0" : Text(1); }

  private:
    const SheetTexts& sheet_;
    int row_ = 0;
    bool isTypeHead_ = false;
    bool isHeading_ = false;
    std::optional<MaterialClass> section_;
};

std::string InsertType(const GridWalk& walk, std::string_view series, std::int64_t type) {
    return "Insert into 门窗 (系列编号,编号,名称,图号) Values(" + std::string(series) + "," +
           ShortText(type) + ",'" + walk.TypeName() + "'," + walk.Drawing() + ")";
}

std::string InsertRow(const GridWalk& walk, std::int64_t type) {
    const FormulaTable& table = FormulaTableOf(*walk.Section());
    std::string columns = "窗号";
    std::string values = ShortText(type);
    for (std::size_t i = 0; i < kFormulaColumns; ++i) {
        columns += std::string(",") + table.columns[i];
        values += table.longest[i] == 0 ? "," + walk.Text(i) : ",'" + walk.Text(i) + "'";
    }
    return std::string("Insert into ") + table.name + " (" + columns + ") Values(" + values + ")";
}

/// An empty store in a folder of its own, removed by the destructor.
class ScratchStore {
  public:
    ScratchStore() {
        std::string name = (std::filesystem::temp_directory_path() / "kalvane-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw FileError("临时文件夹“" + name + "”不能建立。");
        folder_ = name;
        CreateStore(folder_ / kMainStoreName, StoreKind::Main);
        connection_.emplace(folder_ / kMainStoreName, StoreKind::Main);
    }
    ScratchStore(const ScratchStore&) = delete;
    ScratchStore& operator=(const ScratchStore&) = delete;
    ~ScratchStore() {
        connection_.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    Connection& Get() { return *connection_; }

  private:
    std::filesystem::path folder_;
    std::optional<Connection> connection_;
};

/// Finds the first row that the store would refuse.
void FindRefusal(const SheetTexts& sheet, ImportPreview& preview) {
    ScratchStore scratch;
    ImportedFormulas tried;
    try {
        ImportFormulas(scratch.Get(), sheet, "1", tried);
    } catch (const StoreError& refusal) {
        preview.refusedRow = tried.sheetRow;
        preview.refusal = refusal.what();
    }
}

void AppendRows(std::string& text, const std::vector<int>& rows, const std::string& what) {
    if (rows.empty()) return;
    text += "\n第 " + std::to_string(rows.front()) + " 行";
    if (rows.size() > 1) text += "等 " + std::to_string(rows.size()) + " 行";
    text += what;
}

}  // namespace

SheetTexts ReadFormulaSheet(const std::filesystem::path& file) {
    return ReadFirstSheet(file, static_cast<int>(kGridColumns));
}

void ImportFormulas(Connection& connection, const SheetTexts& sheet, std::string_view series,
                    ImportedFormulas& imported) {
    InCommand(connection, [&] {
        auto nextType = static_cast<std::int64_t>(ParseNumber(GetNextId(connection, "门窗")));
        GridWalk walk(sheet);
        while (walk.Next()) {
            imported.sheetRow = walk.Row();
            if (walk.IsFormulaRow() && !walk.Section()) continue;
            try {
                if (walk.IsHead()) {
                    connection.Execute(InsertType(walk, series, nextType));
                    ++nextType;
                    ++imported.types;
                } else if (walk.IsFormulaRow()) {
                    connection.Execute(InsertRow(walk, nextType - 1));
                    ++imported.rows;
                }
            } catch (const Error& refusal) {
                throw StoreError("第 " + std::to_string(walk.Row()) + " 行不能导入：" + refusal.what());
            }
        }
    });
}

ImportPreview PreviewImport(Connection& connection, const SheetTexts& sheet) {
    std::unordered_set<std::string> drawings;
    for (const DrawingEntry& drawing : ListDrawings(connection)) drawings.insert(drawing.number);
    ImportPreview preview;
    GridWalk walk(sheet);
    while (walk.Next()) {
        if (walk.IsHead()) {
            preview.types.push_back(
                {walk.Row(), walk.TypeName(), walk.Drawing(), drawings.contains(walk.Drawing())});
        } else if (walk.IsFormulaRow() && !walk.Section()) {
            preview.dropped.push_back(walk.Row());
        } else if (walk.IsFormulaRow()) {
            ++preview.rows;
            if (preview.types.empty()) {
                preview.strayRows.push_back(walk.Row());
            } else {
                ++preview.types.back().rows;
            }
        }
    }
    for (int row = walk.Row() + 1; row <= sheet.RowCount() && preview.firstIgnored == 0; ++row) {
        for (int column = 1; column <= static_cast<int>(kGridColumns); ++column) {
            if (!sheet.Cell(row, column).empty()) preview.firstIgnored = row;
        }
    }
    FindRefusal(sheet, preview);
    return preview;
}

std::string PreviewText(const ImportPreview& preview) {
    std::string text = "窗型 " + std::to_string(preview.types.size()) + " 个，公式 " +
                       std::to_string(preview.rows) + " 行。";
    if (preview.refusedRow > 0) text += "\n" + preview.refusal + "\n导入将在这一行停止，之前的各行照样导入。";
    AppendRows(text, preview.strayRows, "在第一个“门窗名称：”之前，会加到库中编号最大的窗型上。");
    AppendRows(text, preview.dropped, "之前没有材料的标题行，不会导入。");
    if (preview.firstIgnored > 0) {
        text += "\n第一列的空格是结尾，第 " + std::to_string(preview.firstIgnored) + " 行及以下不会导入。";
    }
    for (const SheetType& type : preview.types) {
        text += "\n第 " + std::to_string(type.row) + " 行：“" + type.name + "”，公式 " +
                std::to_string(type.rows) + " 行，图号 " + type.drawing;
        if (!type.hasDrawing) text += "（图库中没有）";
    }
    return text;
}

}  // namespace kalvane
