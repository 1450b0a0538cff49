#include "platform/settings_store.h"

#include <algorithm>
#include <cstdlib>

#include "platform/error.h"
#include "platform/files.h"

namespace kalvane {
namespace {

std::string FullKey(std::string_view application, std::string_view section, std::string_view key) {
    std::string full(application);
    full.append("/").append(section).append("/").append(key);
    return full;
}

/// One value on one line: a backslash and line ends are written as escapes.
std::string Escape(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\\') {
            result += "\\\\";
        } else if (c == '\n') {
            result += "\\n";
        } else if (c == '\r') {
            result += "\\r";
        } else {
            result += c;
        }
    }
    return result;
}

std::string Unescape(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            ++i;
            result += text[i] == 'n' ? '\n' : text[i] == 'r' ? '\r' : text[i];
        } else {
            result += text[i];
        }
    }
    return result;
}

}  // namespace

SettingsStore::SettingsStore(std::filesystem::path file) : file_(std::move(file)) {
    std::error_code ignored;
    if (!std::filesystem::exists(file_, ignored)) return;
    std::string content;
    try {
        content = ReadFile(file_);
    } catch (const FileError&) {
        return;
    }
    std::string_view rest = content;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        values_[std::string(line.substr(0, equals))] = Unescape(line.substr(equals + 1));
    }
}

std::filesystem::path SettingsStore::DefaultFile() {
    const char* config = std::getenv("XDG_CONFIG_HOME");
    if (config != nullptr && *config != '\0') return std::filesystem::path(config) / "kalvane" / "settings";
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
    values_[FullKey(application, section, key)] = text;
    std::error_code failure;
    std::filesystem::create_directories(file_.parent_path(), failure);
    std::string content;
    for (const auto& [name, value] : values_) {
        content.append(name).append("=").append(Escape(value)).append("\n");
    }
    try {
        WriteFileAtomically(file_, content);
    } catch (const FileError&) {
        // Told in the header.
    }
}

}  // namespace kalvane
