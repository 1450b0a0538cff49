#pragma once

#include <fstream>
#include <sstream>
#include <string>

#include "support/page_text.h"
#include "support/paths.h"

namespace kalvane::test {

/// The commands of a document, a line each, under a line "page n" for each page.
inline std::string PagesText(const PageRecord& record) {
    std::string text;
    int number = 0;
    for (const Page& page : record.Pages()) {
        text += "page " + std::to_string(++number) + "\n";
        for (const std::string& command : CommandTexts(page)) text += command + "\n";
    }
    return text;
}

/// A document as it is to be painted, worked out by tests/output/golden/README.md.
inline std::string Golden(const std::string& name) {
    std::ifstream file(SourceFolder() / "tests/output/golden" / name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

}  // namespace kalvane::test
