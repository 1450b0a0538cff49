#include "support/paths.h"

namespace kalvane::test {

std::filesystem::path SourceFolder() {
    return KALVANE_SOURCE_DIR;
}

std::filesystem::path BatchProgram() {
    return KALVANE_BATCH;
}

}  // namespace kalvane::test
