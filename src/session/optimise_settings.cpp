#include "session/optimise_settings.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "platform/notice.h"
#include "platform/settings_store.h"

namespace kalvane {
namespace {

/// Reads keys one by one; one that cannot be read gives its default and a line of the complaint.
class Reader {
  public:
    explicit Reader(const SettingsStore& store) : store_(store) {}

    std::string Text(std::string_view key, std::string_view fallback) const {
        return store_.Read(kSettingsApplication, kSectionOptimiser, key, fallback);
    }

    template <typename Number>
    void Take(std::string_view key, std::string_view caption, std::string_view fallback, Number& value,
              Number (*convert)(const std::string& text)) {
        const std::string text = Text(key, fallback);
        try {
            value = convert(text);
        } catch (const NumericError&) {
            complaint_ += std::string(caption) + "（" + std::string(key) + "）的值“" + text + "”" +
                          (IsNumeric(text) ? "超出范围" : "不是数字") + "，改用 " + std::string(fallback) +
                          "。\n";
        }
    }

    const std::string& Complaint() const { return complaint_; }

  private:
    const SettingsStore& store_;
    std::string complaint_;
};

std::int16_t FloorOf(const std::string& text) {
    return FloorToInt16(ParseNumber(text));
}

}  // namespace

std::int16_t OptimiseSettings::PieceAllowance() const {
    return Checked16(std::int64_t{LTC} + 2 * std::int64_t{CKK});
}

OptimiseSettings ReadOptimiseSettings(const SettingsStore& store, Notice& notice) {
    OptimiseSettings settings;
    Reader reader(store);
    reader.Take<std::int16_t>("CLC", "材料长度", "0", settings.CLC, &FloorOf);
    reader.Take<std::int16_t>("LTC", "料头长度", "0", settings.LTC, &FloorOf);
    reader.Take<std::int16_t>("CKK", "切口宽度", "0", settings.CKK, &FloorOf);
    reader.Take<std::int32_t>("COUNT", "允许优化材料数量", "0", settings.COUNT,
                              [](const std::string& text) { return FloorToInt32(ParseNumber(text)); });
    reader.Take<float>("YHBL", "控制优化比率", "1", settings.YHBL,
                       [](const std::string& text) { return NarrowToFloat(Val(text)); });
    settings.SAVEPATH = reader.Text("SAVEPATH", "");
    reader.Take<std::int16_t>("NODES", "控制优化结点数", "20", settings.NODES,
                              [](const std::string& text) { return RoundToInt16(ParseNumber(text)); });
    if (!reader.Complaint().empty()) {
        notice.Show("优化选项不能读取：\n" + reader.Complaint() + "请在“基础设置”中检查后按“确定”保存。",
                    "提示", NoticeIcon::Warning);
    }
    return settings;
}

void WriteOptimiseSettings(SettingsStore& store, const OptimiseSettings& settings) {
    const auto save = [&store](std::string_view key, std::string_view text) {
        store.Save(kSettingsApplication, kSectionOptimiser, key, Trim(text));
    };
    save("CLC", ShortText(std::int64_t{settings.CLC}));
    save("LTC", ShortText(std::int64_t{settings.LTC}));
    save("CKK", ShortText(std::int64_t{settings.CKK}));
    save("COUNT", ShortText(std::int64_t{settings.COUNT}));
    save("YHBL", ShortText(settings.YHBL));
    save("SAVEPATH", settings.SAVEPATH);
    save("NODES", ShortText(std::int64_t{settings.NODES}));
}

}  // namespace kalvane
