#include "app/startup.h"

#include <memory>
#include <string>
#include <string_view>

#include "backup/restore.h"
#include "numeric/error.h"
#include "platform/files.h"
#include "project/member_rows.h"
#include "store/dated_copies.h"
#include "store/migration.h"
#include "store/store_files.h"

namespace kalvane {
namespace {

constexpr const char* kErrorTitle = "出错！";

std::unique_ptr<Connection> OpenSound(const std::filesystem::path& file, StoreKind kind, bool check) {
    if (IsLost(file)) throw StoreDamage("文件“" + file.filename().string() + "”不见了。");
    auto connection = std::make_unique<Connection>(file, kind);
    if (check) connection->CheckIntegrity();
    return connection;
}

/// The newest dated copy that is whole; empty when there is none.
std::filesystem::path SoundCopy(const std::filesystem::path& file, StoreKind kind) {
    for (const std::filesystem::path& copy : CopiesOf(file)) {
        try {
            OpenSound(copy, kind, true);
            return copy;
        } catch (const StoreError&) {
            continue;
        }
    }
    return {};
}

/// Opens a store. A damaged or missing one is reported with the way to recover it: the newest copy takes its
/// place if the operator agrees. It is never replaced otherwise, and never lost. Null when the operator wants
/// no copy.
std::unique_ptr<Connection> OpenOrReplace(const std::filesystem::path& file, StoreKind kind, bool check,
                                          const std::string& complaint, Notice& notice) {
    try {
        return OpenSound(file, kind, check);
    } catch (const StoreDamage& damage) {
        const std::filesystem::path copy = SoundCopy(file, kind);
        if (copy.empty()) {
            throw StoreDamage(damage.what() + std::string("\n没有可用的副本。请把这个文件和文件夹“副本”移到"
                                                          "别处，重新启动程序，再用备份恢复。"));
        }
        const std::string question =
            complaint + damage.what() + "\n\n最近的副本是 " + TimeOfCopy(copy) + " 的。要用它代替吗？" +
            (FileExists(file) ? "损坏的文件会另存在文件夹“副本”里。"
                              : "要从头开始，请选“否”，把文件夹“副本”移到别处后重新启动。");
        if (!notice.Confirm(question, kErrorTitle)) return nullptr;
        ReplaceByCopy(file, copy);
        MigrateStore(file, kind, notice);
        return OpenSound(file, kind, true);
    }
}

/// Null after a failure, which is reported.
std::unique_ptr<Connection> OpenStore(const AppState& state, const char* fileName, StoreKind kind,
                                      const std::string& name, Notice& notice) {
    const std::filesystem::path file = state.folder / fileName;
    const std::string complaint = "‘" + name + "’数据库打开出错！\n";
    std::unique_ptr<Connection> connection;
    try {
        MigrateStore(file, kind, notice);
        connection = OpenOrReplace(file, kind, state.checkStores, complaint, notice);
    } catch (const Error& error) {
        notice.Show(complaint + error.what(), kErrorTitle, NoticeIcon::Error);
    }
    return connection;
}

std::string TextOf(const std::unique_ptr<Connection>& connection) {
    return connection != nullptr ? connection->ConnectionText() : std::string();
}

}  // namespace

void WarnOfReadOnlyFolder(const AppState& state, Notice& notice) {
    if (IsWritableFolder(state.folder)) return;
    notice.Show("启动文件夹“" + state.folder.string() + "”不能写入。数据可以查看，但任何修改都不能保存。",
                "提示", NoticeIcon::Warning);
}

std::unique_ptr<Connection> OpenUserStore(const AppState& state, Notice& notice) {
    return OpenStore(state, kUserStoreName, StoreKind::Users, "用户", notice);
}

void OpenMainStore(AppState& state, Notice& notice) {
    state.mainConnection = OpenStore(state, kMainStoreName, StoreKind::Main, "材料", notice);
    state.mainConnectionText = TextOf(state.mainConnection);
    if (state.mainConnection == nullptr) return;
    try {
        MigrateStore(state.folder / kTemplateStoreName, StoreKind::Main, notice);
        OfferToUndoCutRestore(*state.mainConnection, notice);
        if (IsWritableFolder(state.folder)) DropMembersUnderEdit(*state.mainConnection);
    } catch (const Error& error) {
        notice.Show(error.what(), kErrorTitle, NoticeIcon::Error);
    }
}

void OpenStockStore(AppState& state, Notice& notice) {
    state.stockConnection = OpenStore(state, kStockStoreName, StoreKind::Stock, "仓库", notice);
    state.stockConnectionText = TextOf(state.stockConnection);
}

void OpenOwnStore(AppState& state, Notice& notice) {
    // An older program's folder has none, and where nothing can be written it gets none.
    if (!FileExists(state.folder / kOwnStoreName) && !IsWritableFolder(state.folder)) return;
    state.ownConnection = OpenStore(state, kOwnStoreName, StoreKind::Own, "附加", notice);
}

}  // namespace kalvane
