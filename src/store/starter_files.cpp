#include "store/starter_files.h"

#include <string>

#include "numeric/error.h"

namespace kalvane {

std::string_view StarterContent(std::string_view name) {
    for (const StarterFile& file : StarterFiles()) {
        if (file.name == name) return file.content;
    }
    throw FileError("入门资料里没有文件“" + std::string(name) + "”。");
}

}  // namespace kalvane
