#include "batch/locked_store.h"

#include "app/store_setup.h"
#include "batch/line_notice.h"
#include "numeric/error.h"
#include "store/dated_copies.h"
#include "store/migration.h"
#include "store/store_files.h"

namespace kalvane {

LockedStore::LockedStore(const std::filesystem::path& folder, StoreKind kind) : lock_(folder) {
    if (!lock_.Acquire()) throw StoreError("另一个程序正在使用这个文件夹，请先关闭它。");
    CreateMissingStores(folder);
    const std::filesystem::path file = folder / (kind == StoreKind::Stock ? kStockStoreName : kMainStoreName);
    if (IsLost(file)) {
        throw StoreError("数据库“" + file.filename().string() +
                         "”不见了，但有它的副本。请启动桌面程序，用副本恢复。");
    }
    LineNotice notice;
    MigrateStore(file, kind, notice);
    connection_.emplace(file, kind);
}

}  // namespace kalvane
