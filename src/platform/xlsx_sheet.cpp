#include "platform/xlsx_sheet.h"

#include <zip.h>

#include <cstring>
#include <pugixml.hpp>

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr zip_uint64_t kLargestPart = 256'000'000;  // bytes, unpacked
constexpr int kMostRows = 1'048'576;                // of a sheet, by the format
constexpr int kMostColumns = 16'384;

/// The name of a node without the prefix that some writers put before it.
const char* LocalName(const pugi::xml_node& node) {
    const char* colon = std::strchr(node.name(), ':');
    return colon == nullptr ? node.name() : colon + 1;
}

bool Is(const pugi::xml_node& node, const char* name) {
    return std::strcmp(LocalName(node), name) == 0;
}

pugi::xml_node Child(const pugi::xml_node& parent, const char* name) {
    return parent.find_child([name](const pugi::xml_node& child) { return Is(child, name); });
}

/// An attribute whatever its prefix.
std::string Attribute(const pugi::xml_node& node, const char* name) {
    const pugi::xml_attribute found = node.find_attribute([name](const pugi::xml_attribute& attribute) {
        const char* colon = std::strchr(attribute.name(), ':');
        return std::strcmp(colon == nullptr ? attribute.name() : colon + 1, name) == 0;
    });
    return found.value();
}

/// The text of a string item: plain, or in runs of different type. Readings of its characters are no part.
std::string ItemText(const pugi::xml_node& item) {
    std::string text;
    for (const pugi::xml_node& child : item) {
        if (Is(child, "t")) text += child.child_value();
        if (Is(child, "r")) text += Child(child, "t").child_value();
    }
    return text;
}

/// A number in general form; what is none, such as an error's name, as it stands.
std::string NumberText(const std::string& text) {
    return IsNumeric(text) ? ShortText(ParseNumber(text)) : text;
}

/// The column of a cell's name ("C12" is in the third); 0 when there is no such column.
int ColumnOf(const char* name) {
    int column = 0;
    for (; *name >= 'A' && *name <= 'Z' && column <= kMostColumns; ++name) column = column * 26 + *name - '@';
    return column <= kMostColumns ? column : 0;
}

/// An open .xlsx file, closed by the destructor.
class XlsxFile {
  public:
    explicit XlsxFile(const std::filesystem::path& path) : path_(path) {
        int error = 0;
        archive_ = zip_open(path.c_str(), ZIP_RDONLY, &error);
        if (archive_ == nullptr) throw Broken();
    }
    XlsxFile(const XlsxFile&) = delete;
    XlsxFile& operator=(const XlsxFile&) = delete;
    ~XlsxFile() { zip_discard(archive_); }

    SheetTexts Texts(int columns) const {
        const std::vector<std::string> strings = SharedStrings();
        const pugi::xml_document part = Part(FirstSheetName());
        SheetTexts texts;
        int row = 0;
        for (const pugi::xml_node& line : Child(Child(part, "worksheet"), "sheetData")) {
            row = line.attribute("r").as_int(row + 1);
            if (row < 1 || row > kMostRows) throw Broken();
            int column = 0;
            for (const pugi::xml_node& cell : line) {
                const pugi::xml_attribute name = cell.attribute("r");
                column = name ? ColumnOf(name.value()) : column + 1;
                if (column < 1) throw Broken();
                if (column > columns) continue;
                std::string text = CellText(cell, strings);
                if (!IsUtf8(text)) throw Broken();
                if (!text.empty()) texts.Set(row, column, std::move(text));
            }
        }
        return texts;
    }

  private:
    FileError Broken() const {
        return FileError("“" + path_.string() + "”不是完整的 Excel 工作簿，请在 Excel 中重新保存。");
    }

    bool Has(const std::string& name) const { return zip_name_locate(archive_, name.c_str(), 0) >= 0; }

    pugi::xml_document Part(const std::string& name) const {
        zip_stat_t entry;
        if (zip_stat(archive_, name.c_str(), 0, &entry) != 0) throw Broken();
        if (entry.size > kLargestPart) throw FileError("“" + path_.string() + "”太大，不能读入。");
        std::string text(entry.size, '\0');
        zip_file_t* stream = zip_fopen(archive_, name.c_str(), 0);
        if (stream == nullptr) throw Broken();
        const zip_int64_t read = zip_fread(stream, text.data(), text.size());
        zip_fclose(stream);
        pugi::xml_document document;
        if (read != static_cast<zip_int64_t>(text.size()) ||
            !document.load_buffer(text.data(), text.size(),
                                  pugi::parse_default | pugi::parse_ws_pcdata_single)) {
            throw Broken();
        }
        return document;
    }

    /// The part of the sheet that the workbook names first.
    std::string FirstSheetName() const {
        const pugi::xml_document book = Part("xl/workbook.xml");
        const pugi::xml_node sheet = Child(Child(Child(book, "workbook"), "sheets"), "sheet");
        const std::string id = Attribute(sheet, "id");
        const pugi::xml_document relations = Part("xl/_rels/workbook.xml.rels");
        for (const pugi::xml_node& relation : Child(relations, "Relationships")) {
            if (id != relation.attribute("Id").value()) continue;
            const std::string target = relation.attribute("Target").value();
            return target.starts_with('/') ? target.substr(1) : "xl/" + target;
        }
        throw Broken();
    }

    std::vector<std::string> SharedStrings() const {
        std::vector<std::string> strings;
        if (!Has("xl/sharedStrings.xml")) return strings;
        const pugi::xml_document part = Part("xl/sharedStrings.xml");
        for (const pugi::xml_node& item : Child(part, "sst")) strings.push_back(ItemText(item));
        return strings;
    }

    std::string CellText(const pugi::xml_node& cell, const std::vector<std::string>& strings) const {
        const std::string type = cell.attribute("t").value();
        if (type == "inlineStr") return ItemText(Child(cell, "is"));
        const pugi::xml_node value = Child(cell, "v");
        if (type == "s") {
            const unsigned int index = value.text().as_uint();
            if (index >= strings.size()) throw Broken();
            return strings[index];
        }
        if (type == "str") return value.child_value();
        return NumberText(value.child_value());
    }

    const std::filesystem::path& path_;
    zip_t* archive_ = nullptr;
};

}  // namespace

SheetTexts ReadXlsxSheet(const std::filesystem::path& path, int columns) {
    return XlsxFile(path).Texts(columns);
}

}  // namespace kalvane
