#include "backup/backup.h"

#include <array>
#include <string>

#include "numeric/error.h"
#include "platform/files.h"
#include "platform/help_text.h"
#include "platform/unfinished_file.h"
#include "store/command_scope.h"
#include "store/dated_copies.h"
#include "store/store_files.h"
#include "store/table_writer.h"

namespace kalvane {
namespace {

constexpr std::array<std::string_view, 25> kTables = {
    "arc",      "Arrow",  "Dim",    "Line",   "Rectangle", "Strings",  "标注",     "标注2", "玻璃",
    "材料厂家", "窗板材", "窗配件", "窗型钢", "工程",      "工程合同", "工程门窗", "门窗",  "门窗厂家",
    "门窗系列", "配件",   "图",     "型材",   "型材系列",  "型钢",     "窗型材"};

void CopyFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code failure;
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, failure);
    if (failure) {
        throw FileError("文件“" + from.filename().string() + "”不能复制到“" + to.parent_path().string() +
                        "”：" + SystemReason(failure.value()) + "。");
    }
}

void FillBackup(Connection& main, Connection& backup, const TableProgress& progress) {
    int done = 0;
    for (const std::string_view table : kTables) {
        TableWriter writer(backup, table);
        CopyTableRows(main.OpenCursor("Select * from " + std::string(table)), writer);
        if (progress) progress(++done);
    }
}

/// A store of this folder or any other, and what the program keeps beside the stores.
void RefuseOwnFiles(const std::filesystem::path& target, const std::filesystem::path& folder) {
    const std::string targetName = target.filename().string();
    for (const char* name :
         {kMainStoreName, kStockStoreName, kUserStoreName, kTemplateStoreName, kOwnStoreName}) {
        std::error_code ignored;
        if (targetName == name || std::filesystem::equivalent(target, folder / name, ignored)) {
            throw FileError("“" + std::string(name) + "”是正在使用的数据库，请换一个备份文件名。");
        }
    }
    if (targetName == kHelpFileName || targetName.starts_with(kOwnFilePrefix)) {
        throw FileError("“" + targetName + "”是程序自己的文件，请换一个备份文件名。");
    }
    std::error_code ignored;
    if (IsCopyFolder(std::filesystem::weakly_canonical(target, ignored).parent_path())) {
        throw FileError("文件夹“副本”由程序自己使用，请把备份放在别处。");
    }
}

}  // namespace

std::span<const std::string_view> BackupTables() {
    return kTables;
}

std::filesystem::path BackupPath(const std::filesystem::path& folder, std::string_view name) {
    const bool hasDot = name.find('.') != std::string_view::npos;
    return folder / (std::string(name) + (hasDot ? "" : ".MBK"));
}

bool WouldReplaceOtherFile(const std::filesystem::path& target) {
    if (!FileExists(target)) return false;
    try {
        Connection(target, StoreKind::Backup);
        return false;
    } catch (const StoreError&) {
        return true;
    }
}

void BackupMainStore(Connection& main, const std::filesystem::path& templateStore,
                     const std::filesystem::path& target, const TableProgress& progress) {
    RefuseOwnFiles(target, main.File().parent_path());
    if (!FileExists(templateStore)) {
        throw FileError("没有空白数据库“" + templateStore.filename().string() +
                        "”，不能备份。请重新启动程序，启动时会重新建立它。");
    }
    UnfinishedFile file(target);
    CopyFile(templateStore, file.Path());
    {
        Connection backup(file.Path(), StoreKind::Main);
        InCommand(backup, [&] { FillBackup(main, backup, progress); });
    }
    file.Finish();
}

}  // namespace kalvane
