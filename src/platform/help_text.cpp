#include "platform/help_text.h"

#include "numeric/error.h"
#include "platform/code_page.h"
#include "platform/files.h"

namespace kalvane {

std::string HelpText(const std::filesystem::path& folder) {
    try {
        return DecodeFileText(ReadPlainFile(folder / kHelpFileName));
    } catch (const FileError&) {
        return "无帮助文件！";
    }
}

}  // namespace kalvane
