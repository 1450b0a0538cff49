#include "backup/restore.h"

#include <string>

#include "numeric/error.h"
#include "platform/files.h"
#include "store/command_scope.h"
#include "store/dated_copies.h"
#include "store/store_copy.h"
#include "store/table_writer.h"

namespace kalvane {
namespace {

const std::string kTitle = "提示";

/// A file beside the store from before the first change of a restore until after the last decision about it.
/// It holds the path of the copy to go back to.
class RestoreMarker {
  public:
    explicit RestoreMarker(const Connection& main)
        : file_(main.File().parent_path() / (std::string(kOwnFilePrefix) + "restore")) {}

    bool Exists() const { return FileExists(file_); }
    void Set(const std::filesystem::path& copy) const { WriteFileAtomically(file_, copy.string()); }
    std::filesystem::path Copy() const { return ReadPlainFile(file_); }
    void Remove() const {
        std::error_code failure;
        std::filesystem::remove(file_, failure);
        if (failure) FailOnFile(file_, "删除", failure.value());
    }

  private:
    std::filesystem::path file_;
};

void RestoreTables(Connection& main, Connection& backup, const TableProgress& progress) {
    int done = 0;
    for (const std::string_view table : BackupTables()) {
        const std::string name(table);
        try {
            main.Execute("Delete from " + name);
            TableWriter writer(main, table);
            CopyTableRows(backup.OpenCursor("Select * from " + name), writer);
        } catch (const Error& failure) {
            throw StoreError("还原到表“" + name + "”时出错：" + failure.what());
        }
        if (progress) progress(++done);
    }
}

/// Without it there would be no way back.
std::filesystem::path CopyOfNow(const Connection& main) {
    try {
        return KeepCopy(main.File());
    } catch (const StoreDamage& damage) {
        throw StoreDamage(damage.what() +
                          std::string("还原之前的数据不能另存，所以没有还原。请退出程序后重新启动，先按提示用"
                                      "副本恢复。"));
    }
}

void PutBack(Connection& main, const std::filesystem::path& copy, Notice& notice) {
    ReplaceContent(main.File(), copy);
    notice.Show("数据已恢复到还原之前的状态。", kTitle, NoticeIcon::Information);
}

}  // namespace

void RestoreMainStore(Connection& main, const std::filesystem::path& backupFile,
                      const TableProgress& progress, Notice& notice) {
    std::error_code ignored;
    if (std::filesystem::equivalent(backupFile, main.File(), ignored)) {
        throw FileError("“" + backupFile.filename().string() + "”是正在使用的数据库，不是备份，没有还原。");
    }
    Connection backup(backupFile, StoreKind::Backup);
    const std::filesystem::path copy = CopyOfNow(main);
    const RestoreMarker marker(main);
    marker.Set(copy);
    try {
        InCommand(main, [&] { RestoreTables(main, backup, progress); });
    } catch (const Error& failure) {
        const std::string question =
            std::string(failure.what()) + "\n\n还原没有完成。还原之前的数据已另存，要把它放回吗？";
        if (notice.Confirm(question, kTitle)) PutBack(main, copy, notice);
        marker.Remove();
        return;
    }
    marker.Remove();
    notice.Show("数据恢复完毕！", kTitle, NoticeIcon::Information);
}

void OfferToUndoCutRestore(Connection& main, Notice& notice) {
    const RestoreMarker marker(main);
    if (!marker.Exists()) return;
    const std::filesystem::path copy = marker.Copy();
    if (FileExists(copy)) {
        const std::string question = "上一次还原数据时程序意外结束，还原可能没有完成。要把还原之前的数据（" +
                                     TimeOfCopy(copy) + " 另存）放回吗？";
        if (notice.Confirm(question, kTitle)) PutBack(main, copy, notice);
    } else {
        notice.Show("上一次还原数据时程序意外结束，请检查数据；需要时请重新还原。", kTitle,
                    NoticeIcon::Warning);
    }
    marker.Remove();
}

}  // namespace kalvane
