#include "platform/code_page.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>

#include "numeric/assertion.h"
#include "numeric/error.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

/// One open iconv conversion.
class Converter {
  public:
    Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {
        KALVANE_ASSERT(handle_ != reinterpret_cast<iconv_t>(-1));
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() { iconv_close(handle_); }

    /// Converts as much of `input` as it can, appends to `output`, and returns the bytes used.
    std::size_t Convert(std::string_view input, std::string& output) {
        char* in = const_cast<char*>(input.data());  // iconv's signature; the input is not written
        std::size_t inLeft = input.size();
        char buffer[512];
        while (inLeft > 0) {
            char* out = buffer;
            std::size_t outLeft = sizeof buffer;
            const std::size_t result = iconv(handle_, &in, &inLeft, &out, &outLeft);
            const int reason = errno;
            output.append(buffer, static_cast<std::size_t>(out - buffer));
            if (result == static_cast<std::size_t>(-1) && reason != E2BIG) break;
        }
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        return input.size() - inLeft;
    }

  private:
    iconv_t handle_;
};

/// Chinese text in UTF-8 always has one. A single Chinese character in GBK can pass for a letter of two
/// bytes, which no file of this trade holds.
bool HasCharacterOfThreeBytes(std::string_view utf8) {
    return std::any_of(utf8.begin(), utf8.end(),
                       [](char c) { return static_cast<unsigned char>(c) >= 0xE0; });
}

}  // namespace

std::string ToGbk(std::string_view utf8) {
    Converter converter("GBK", "UTF-8");
    std::string result;
    const std::size_t used = converter.Convert(utf8, result);
    if (used < utf8.size()) {
        throw CodePageError("文件不能保存字符“" + std::string(LeftChars(utf8.substr(used), 1)) +
                            "”，请改用其他文字。");
    }
    return result;
}

std::string FromGbk(std::string_view gbk) {
    Converter converter("UTF-8", "GBK");
    std::string result;
    while (!gbk.empty()) {
        gbk.remove_prefix(converter.Convert(gbk, result));
        if (gbk.empty()) break;
        result += "\xEF\xBF\xBD";
        gbk.remove_prefix(1);
    }
    return result;
}

std::string DecodeFileText(std::string_view bytes) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    const bool isMarked = bytes.substr(0, kMark.size()) == kMark;
    if (!IsUtf8(bytes) || (!isMarked && !HasCharacterOfThreeBytes(bytes))) return FromGbk(bytes);
    if (isMarked) bytes.remove_prefix(kMark.size());
    return std::string(bytes);
}

std::vector<std::int16_t> CodePageWords(std::string_view utf8) {
    Converter converter("GBK", "UTF-8");
    std::vector<std::int16_t> words;
    while (!utf8.empty()) {
        const std::string_view character = LeftChars(utf8, 1);
        std::string bytes;
        if (converter.Convert(character, bytes) < character.size() || bytes.empty()) bytes = "?";
        unsigned word = static_cast<unsigned char>(bytes[0]);
        if (bytes.size() > 1) word = word * 256 + static_cast<unsigned char>(bytes[1]);
        words.push_back(static_cast<std::int16_t>(word));
        utf8.remove_prefix(character.size());
    }
    return words;
}

}  // namespace kalvane
