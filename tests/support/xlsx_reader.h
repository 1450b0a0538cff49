#pragma once

#include <gtest/gtest.h>
#include <zip.h>

#include <filesystem>
#include <map>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <vector>

namespace kalvane::test {

/// A sheet as a spreadsheet program finds it in the file.
struct XlsxSheet {
    std::map<std::string, std::string> cells;  ///< by name, such as "A1"; a number as "#0.5", empty cells too
    std::set<std::string> bordered;            ///< cells with thin lines on all four sides
    std::set<std::string> centred;
    std::vector<std::string> merges;  ///< such as "A1:E1"
    std::map<int, double> widths;     ///< by column from 1; a program's own cell margin is part of it
};

/// Reads an .xlsx file with an archive and an XML library, by the format's own rules: none of our code and
/// none of the library that wrote it.
class XlsxReader {
  public:
    explicit XlsxReader(const std::filesystem::path& file) {
        int error = 0;
        archive_ = zip_open(file.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &error);
        EXPECT_NE(archive_, nullptr) << file << " is no archive: " << error;
    }
    XlsxReader(const XlsxReader&) = delete;
    XlsxReader& operator=(const XlsxReader&) = delete;
    ~XlsxReader() { zip_discard(archive_); }

    /// Sheets count from 1.
    XlsxSheet Sheet(int number) const {
        const pugi::xml_document strings = Part("xl/sharedStrings.xml");
        const pugi::xml_document styles = Part("xl/styles.xml");
        const pugi::xml_document part = Part("xl/worksheets/sheet" + std::to_string(number) + ".xml");
        const pugi::xml_node root = part.child("worksheet");
        XlsxSheet sheet;
        for (const pugi::xml_node& row : root.child("sheetData")) {
            for (const pugi::xml_node& cell : row) {
                const std::string name = cell.attribute("r").value();
                const std::string value = cell.child_value("v");
                const bool isText = std::string(cell.attribute("t").value()) == "s";
                sheet.cells[name] = isText          ? TextAt(strings, std::stoi(value))
                                    : value.empty() ? ""
                                                    : "#" + value;
                const pugi::xml_node format =
                    Nth(styles.child("styleSheet").child("cellXfs"), cell.attribute("s").as_int());
                const pugi::xml_node border =
                    Nth(styles.child("styleSheet").child("borders"), format.attribute("borderId").as_int());
                bool isBordered = true;
                for (const char* side : {"left", "right", "top", "bottom"}) {
                    isBordered =
                        isBordered && std::string(border.child(side).attribute("style").value()) == "thin";
                }
                if (isBordered) sheet.bordered.insert(name);
                if (std::string(format.child("alignment").attribute("horizontal").value()) == "center") {
                    sheet.centred.insert(name);
                }
            }
        }
        for (const pugi::xml_node& merge : root.child("mergeCells")) {
            sheet.merges.push_back(merge.attribute("ref").value());
        }
        for (const pugi::xml_node& columns : root.child("cols")) {
            for (int i = columns.attribute("min").as_int(); i <= columns.attribute("max").as_int(); ++i) {
                sheet.widths[i] = columns.attribute("width").as_double();
            }
        }
        return sheet;
    }

  private:
    pugi::xml_document Part(const std::string& name) const {
        pugi::xml_document document;
        zip_stat_t entry;
        if (zip_stat(archive_, name.c_str(), 0, &entry) != 0) {
            ADD_FAILURE() << "no part " << name;
            return document;
        }
        std::string text(entry.size, '\0');
        zip_file_t* stream = zip_fopen(archive_, name.c_str(), 0);
        EXPECT_EQ(zip_fread(stream, text.data(), text.size()), static_cast<zip_int64_t>(text.size()));
        zip_fclose(stream);
        EXPECT_TRUE(document.load_string(text.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single));
        return document;
    }
    static pugi::xml_node Nth(const pugi::xml_node& parent, int index) {
        pugi::xml_node child = parent.first_child();
        for (; index > 0; --index) child = child.next_sibling();
        return child;
    }
    static std::string TextAt(const pugi::xml_document& strings, int index) {
        return Nth(strings.child("sst"), index).child_value("t");
    }

    zip_t* archive_ = nullptr;
};

}  // namespace kalvane::test
