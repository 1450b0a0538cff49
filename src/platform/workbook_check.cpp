#include "platform/workbook_check.h"

#include <zip.h>

#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "numeric/error.h"

namespace kalvane {
namespace {

[[noreturn]] void FailCutOff() {
    throw FileError("电子表格没有写完整：磁盘可能已满。请清理磁盘后再试，原有的文件没有改动。");
}

/// An archive opened for reading.
class Archive {
  public:
    explicit Archive(const std::filesystem::path& file)
        : handle_(zip_open(file.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr)) {
        if (handle_ == nullptr) FailCutOff();
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive() { zip_discard(handle_); }

    zip_int64_t Count() const { return zip_get_num_entries(handle_, 0); }

    std::string_view Name(zip_int64_t entry) const {
        const char* name = zip_get_name(handle_, static_cast<zip_uint64_t>(entry), 0);
        if (name == nullptr) FailCutOff();
        return name;
    }

    /// The bytes of an entry, against whose checksum they have been held.
    std::string Read(zip_int64_t entry) const {
        zip_stat_t state;
        zip_stat_init(&state);
        const auto index = static_cast<zip_uint64_t>(entry);
        if (zip_stat_index(handle_, index, 0, &state) != 0) FailCutOff();
        std::string bytes(state.size, '\0');
        zip_file_t* file = zip_fopen_index(handle_, index, 0);
        if (file == nullptr) FailCutOff();
        const zip_int64_t read = zip_fread(file, bytes.data(), bytes.size());
        // The checksum is looked at when the end is met.
        char beyond = 0;
        const zip_int64_t end = zip_fread(file, &beyond, 1);
        const bool isWhole = read == static_cast<zip_int64_t>(bytes.size()) && end == 0;
        if (zip_fclose(file) != 0 || !isWhole) FailCutOff();
        return bytes;
    }

  private:
    zip_t* handle_;
};

}  // namespace

void RequireWholeWorkbook(const std::filesystem::path& file) {
    const Archive archive(file);
    if (archive.Count() == 0) FailCutOff();
    for (zip_int64_t entry = 0; entry < archive.Count(); ++entry) {
        std::string bytes = archive.Read(entry);
        const std::string_view name = archive.Name(entry);
        if (!name.ends_with(".xml") && !name.ends_with(".rels")) continue;
        pugi::xml_document document;
        if (!document.load_buffer_inplace(bytes.data(), bytes.size())) FailCutOff();
    }
}

}  // namespace kalvane
