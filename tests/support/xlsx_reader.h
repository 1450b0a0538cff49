#pragma once

#include <gtest/gtest.h>
#include <zip.h>

#include <filesystem>
#include <map>
#include <pugixml.hpp>
#include <string>

namespace kalvane::test {

/// A sheet as a spreadsheet program finds it in the file. Cells go by their names, row by row.
struct XlsxSheet {
    std::string cells;             ///< "A1=text|B1=#0.5" with # before a number, a line for each row
    std::string bordered;          ///< cells with thin lines on all four sides: "A1 B1 "
    std::string centred;           ///< likewise
    std::string merges;            ///< such as "A1:E1 "
    std::map<int, double> widths;  ///< by column from 1; a program's own cell margin is part of it
    std::string page;              ///< paper, pages wide and high, repeated rows, rows kept in view
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
        const pugi::xml_node style = styles.child("styleSheet");
        for (const pugi::xml_node& row : root.child("sheetData")) {
            for (const pugi::xml_node& cell : row) {
                const std::string name = cell.attribute("r").value();
                const std::string value = cell.child_value("v");
                sheet.cells += name + "=";
                if (std::string(cell.attribute("t").value()) == "s") {
                    sheet.cells += Nth(strings.child("sst"), std::stoi(value)).child_value("t");
                } else if (!value.empty()) {
                    sheet.cells += "#" + value;
                }
                sheet.cells += cell == row.last_child() ? "\n" : "|";
                const pugi::xml_node format = Nth(style.child("cellXfs"), cell.attribute("s").as_int());
                const pugi::xml_node border =
                    Nth(style.child("borders"), format.attribute("borderId").as_int());
                int thin = 0;
                for (const char* side : {"left", "right", "top", "bottom"}) {
                    thin += std::string(border.child(side).attribute("style").value()) == "thin" ? 1 : 0;
                }
                if (thin == 4) sheet.bordered += name + " ";
                const std::string place = format.child("alignment").attribute("horizontal").value();
                if (place == "center") sheet.centred += name + " ";
            }
        }
        for (const pugi::xml_node& merge : root.child("mergeCells")) {
            sheet.merges += std::string(merge.attribute("ref").value()) + " ";
        }
        for (const pugi::xml_node& columns : root.child("cols")) {
            for (int i = columns.attribute("min").as_int(); i <= columns.attribute("max").as_int(); ++i) {
                sheet.widths[i] = columns.attribute("width").as_double();
            }
        }
        const pugi::xml_node page = root.child("pageSetup");
        const std::string repeated =
            Nth(Part("xl/workbook.xml").child("workbook").child("definedNames"), number - 1).child_value();
        sheet.page = std::string(page.attribute("paperSize").value()) + " " +
                     page.attribute("fitToWidth").as_string("1") + " x " +
                     page.attribute("fitToHeight").as_string("1") + " " + repeated + " " +
                     root.child("sheetViews").first_child().child("pane").attribute("ySplit").value();
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

    zip_t* archive_ = nullptr;
};

}  // namespace kalvane::test
