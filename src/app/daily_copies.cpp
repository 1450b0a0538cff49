#include "app/daily_copies.h"

#include <string>

#include "numeric/error.h"
#include "platform/files.h"
#include "store/dated_copies.h"
#include "store/store_files.h"

namespace kalvane {

void KeepDailyCopies(AppState& state, Notice& notice) {
    constexpr struct {
        const char* file;
        const char* name;
    } kStores[] = {{kMainStoreName, "材料"},
                   {kStockStoreName, "仓库"},
                   {kUserStoreName, "用户"},
                   {kOwnStoreName, "附加"}};
    if (!IsWritableFolder(state.folder)) return;
    for (const auto& store : kStores) {
        const std::filesystem::path file = state.folder / store.file;
        if (!FileExists(file)) continue;
        std::string complaint = "‘" + std::string(store.name) + "’数据库今天的副本没有保存：";
        try {
            KeepDailyCopy(file);
        } catch (const StoreDamage& damage) {
            state.storesAreDoubtful = true;
            notice.Show(complaint + damage.what() +
                            "\n以前的副本都还在。请退出程序后重新启动：启动时会检查数据库，并用最近的完好副本"
                            "恢复。",
                        "提示", NoticeIcon::Error);
        } catch (const Error& error) {
            notice.Show(complaint + error.what(), "提示", NoticeIcon::Warning);
        }
    }
}

}  // namespace kalvane
