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

/// Null after a failure, which is told.
std::unique_ptr<Connection> OpenStore(const std::filesystem::path& file, StoreKind kind,
                                      const std::string& name, Notice& notice) {
    try {
        return std::make_unique<Connection>(file, kind);
    } catch (const Error& error) {
        notice.Show("‘" + name + "’数据库打开出错！\n" + error.what(), "出错！", NoticeIcon::Error);
        return nullptr;
    }
}

std::string TextOf(const std::unique_ptr<Connection>& connection) {
    return connection != nullptr ? connection->ConnectionText() : std::string();
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

std::unique_ptr<Connection> OpenUserStore(const AppState& state, Notice& notice) {
    return OpenStore(state.folder / kUserStoreName, StoreKind::Users, "用户", notice);
}

void OpenMainStore(AppState& state, Notice& notice) {
    state.mainConnection = OpenStore(state.folder / kMainStoreName, StoreKind::Main, "材料", notice);
    state.mainConnectionText = TextOf(state.mainConnection);
}

void OpenStockStore(AppState& state, Notice& notice) {
    state.stockConnection = OpenStore(state.folder / kStockStoreName, StoreKind::Stock, "仓库", notice);
    state.stockConnectionText = TextOf(state.stockConnection);
}

}  // namespace kalvane
