#include "platform/settings_store.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cstdlib>

#include "numeric/error.h"
#include "numeric/text.h"
#include "platform/descriptor.h"
#include "platform/files.h"

namespace kalvane {
namespace {

std::string FullKey(std::string_view application, std::string_view section, std::string_view key) {
    std::string full(application);
    full.append("/").append(section).append("/").append(key);
    return full;
}

/// Held while the file is read and written anew, so that of two programs none loses what the other saves.
/// The kernel's lock on an empty file beside it; it ends with the process.
class SettingsLock {
  public:
    explicit SettingsLock(std::filesystem::path file)
        : descriptor_(::open((file += ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {
        if (descriptor_.Get() >= 0) ::flock(descriptor_.Get(), LOCK_EX);
    }

  private:
    Descriptor descriptor_;
};

}  // namespace

SettingsStore::SettingsStore(std::filesystem::path file) : file_(std::move(file)) {
    Load();
}

void SettingsStore::Load() {
    if (!FileExists(file_)) return;
    std::string content;
    try {
        content = ReadPlainFile(file_);
    } catch (const FileError&) {
        return;
    }
    std::string_view rest = content;
    while (!rest.empty()) {
        const std::string_view line = TakeUpTo(rest, "\n");
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        values_[std::string(line.substr(0, equals))] = FromOneLine(line.substr(equals + 1));
    }
}

std::filesystem::path SettingsStore::DefaultFile() {
    // A relative path is invalid there and is to be ignored.
    const char* config = std::getenv("XDG_CONFIG_HOME");
    if (config != nullptr && *config == '/') return std::filesystem::path(config) / "kalvane" / "settings";
    const char* home = std::getenv("HOME");
    const std::filesystem::path base = home != nullptr && *home != '\0' ? home : ".";
    return base / ".config" / "kalvane" / "settings";
}

std::string SettingsStore::Read(std::string_view application, std::string_view section, std::string_view key,
                                std::string_view fallback) const {
    const auto found = values_.find(FullKey(application, section, key));
    return found == values_.end() ? std::string(fallback) : found->second;
}

void SettingsStore::Save(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view text) {
    std::error_code failure;
    std::filesystem::create_directories(file_.parent_path(), failure);
    const SettingsLock lock(file_);
    Load();
    unsaved_[FullKey(application, section, key)] = text;
    for (const auto& [name, value] : unsaved_) values_[name] = value;
    std::string content;
    for (const auto& [name, value] : values_) {
        content.append(name).append("=").append(OnOneLine(value)).append("\n");
    }
    try {
        WriteFileAtomically(file_, content);
        unsaved_.clear();
    } catch (const FileError&) {
        // Not reported: see Save.
    }
}

}  // namespace kalvane
