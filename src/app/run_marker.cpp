#include "app/run_marker.h"

#include "numeric/error.h"
#include "platform/files.h"

namespace kalvane {

RunMarker::RunMarker(const std::filesystem::path& folder)
    : file_(folder / (std::string(kOwnFilePrefix) + "running")) {}

RunMarker::~RunMarker() {
    std::error_code ignored;
    if (isSet_) std::filesystem::remove(file_, ignored);
}

bool RunMarker::Exists() const {
    std::error_code ignored;
    return std::filesystem::exists(file_, ignored);
}

void RunMarker::Set() {
    try {
        WriteFileAtomically(file_, "");
        isSet_ = true;
    } catch (const FileError&) {
        // No failure: see Set.
    }
}

}  // namespace kalvane
