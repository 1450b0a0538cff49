#include "app/startup.h"

#include <memory>
#include <string>
#include <string_view>

#include "numeric/number.h"
#include "platform/error.h"
#include "platform/settings_store.h"
#include "store/store_files.h"

namespace kalvane {
namespace {

std::int16_t ReadInt16(const SettingsStore& settings, std::string_view key, std::int16_t fallback) {
    const std::string text = settings.Read(kSettingsApplication, kSectionMain, key, "");
    try {
        return text.empty() ? fallback : RoundToInt16(ParseNumber(text));
    } catch (const NumericError&) {
        return fallback;
    }
}

void OpenStore(std::unique_ptr<Connection>& connection, std::string& connectionText,
               const std::filesystem::path& file, StoreKind kind, const std::string& failure,
               Notice& notice) {
    connection.reset();
    connectionText.clear();
    try {
        connection = std::make_unique<Connection>(file, kind);
        connectionText = connection->ConnectionText();
    } catch (const Error& error) {
        notice.Show(failure + "\n" + error.what(), "出错！", NoticeIcon::Error);
    }
}

}  // namespace

void ReadOutputSettings(AppState& state, std::int16_t windCheckDefault) {
    state.outputFileType = ReadInt16(*state.settings, "OutPutFileType", 0);
    state.windCheckOption = ReadInt16(*state.settings, "FYOPTION", windCheckDefault);
}

void ReadOptimiserOptions(AppState& state, Notice& notice) {
    try {
        state.optimise = ReadOptimiseSettings(*state.settings);
    } catch (const NumericError& error) {
        state.optimise = OptimiseSettings();
        notice.Show(std::string("优化选项不能读取：") + error.what() + "。已改用默认值。", "提示",
                    NoticeIcon::Warning);
    }
}

void OpenMainStore(AppState& state, Notice& notice) {
    OpenStore(state.mainConnection, state.mainConnectionText, state.folder / kMainStoreName, StoreKind::Main,
              "‘材料’数据库打开出错！", notice);
}

void OpenStockStore(AppState& state, Notice& notice) {
    OpenStore(state.stockConnection, state.stockConnectionText, state.folder / kStockStoreName,
              StoreKind::Stock, "‘仓库’数据库打开出错！", notice);
}

}  // namespace kalvane
