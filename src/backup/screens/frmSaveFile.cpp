#include "backup/screens/frmSaveFile.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QStorageInfo>

#include "backup/backup.h"
#include "backup/screens/copy_progress.h"
#include "backup/screens/folder_tree.h"
#include "platform/settings_store.h"
#include "session/app_state.h"
#include "store/store_files.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/screen_memory.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(560, 520);

/// Where backups go the first time: beside the database.
QString DatabaseFolder() {
    const std::string file = App().settings->Read(kSettingsApplication, kSectionMain, "DATABASE",
                                                  (App().folder / kMainStoreName).string());
    return ToQt(std::filesystem::path(file).parent_path().string());
}

}  // namespace

QString frmSaveFile::Purpose() {
    return QStringLiteral("backup");
}

frmSaveFile::frmSaveFile(QWidget* parent)
    : Screen(QStringLiteral("frmSaveFile"), QStringLiteral("备份文件"), parent),
      Drive1_(new QComboBox(this)),
      Dir1_(new FolderTree(QStringLiteral("Dir1"), this)),
      TxtFileName_(MakeBox(QStringLiteral("TxtFileName"), this)),
      progress_(new CopyProgress(this)) {
    Drive1_->setObjectName(QStringLiteral("Drive1"));
    TxtFileName_->setPlaceholderText(QStringLiteral("没有扩展名时自动加上 .MBK"));
    auto* path = new QLabel(this);
    path->setObjectName(QStringLiteral("lblPath"));
    path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    path->setWordWrap(true);

    auto* body = new QWidget(this);
    auto* fields = new QFormLayout(body);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->addRow(QStringLiteral("备份文件名："), TxtFileName_);
    fields->addRow(QStringLiteral("磁盘："), Drive1_);
    fields->addRow(QStringLiteral("文件夹："), Dir1_);
    fields->addRow(QStringLiteral("保存到："), path);
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("&Y 确定"), this);
    ok->setDefault(true);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("&E 退出"), this);
    LayOutAboveButtons(this, body, {ok, cancel}, progress_);
    resize(kFirstSize);

    FillDrives();
    OnSignal(Dir1_, &FolderTree::FolderChanged, this, [this, path] {
        path->setText(QDir::toNativeSeparators(Dir1_->Folder()));
        ShowDriveOf(Dir1_->Folder());
    });
    OnSignal(Drive1_, &QComboBox::activated, this,
             [this] { Dir1_->SetFolder(Drive1_->currentData().toString()); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    Dir1_->SetFolder(RememberedFolder(Purpose(), DatabaseFolder()));
    TxtFileName_->setFocus();
}

void frmSaveFile::FillDrives() {
    const auto add = [this](const QString& caption, const QString& path) {
        if (Drive1_->findData(path) < 0) {
            Drive1_->addItem(caption + QStringLiteral("（%1）").arg(QDir::toNativeSeparators(path)), path);
        }
    };
    add(QStringLiteral("本机"), QDir::rootPath());
    add(QStringLiteral("个人文件夹"), QDir::homePath());
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const bool isForFiles =
            volume.isReady() && !volume.isReadOnly() && QFileInfo(volume.rootPath()).isDir();
        if (isForFiles) add(volume.displayName().section(QLatin1Char('/'), -1), volume.rootPath());
    }
}

void frmSaveFile::ShowDriveOf(const QString& folder) {
    int best = -1;
    for (int i = 0; i < Drive1_->count(); ++i) {
        const QString drive = Drive1_->itemData(i).toString();
        const bool isLonger = best < 0 || drive.size() > Drive1_->itemData(best).toString().size();
        if (IsWithin(drive, folder) && isLonger) best = i;
    }
    Drive1_->setCurrentIndex(best);
}

void frmSaveFile::Save() {
    if (TxtFileName_->text().isEmpty()) {
        Tell(this, QStringLiteral("文件名不能为空！"));
        TxtFileName_->setFocus();
        return;
    }
    const QString folder = Dir1_->Folder();
    if (folder.isEmpty()) {
        Tell(this, QStringLiteral("路径不能为空！"));
        Dir1_->setFocus();
        return;
    }
    const std::filesystem::path target = BackupPath(FromQt(folder), FromQt(TxtFileName_->text()));
    if (WouldReplaceOtherFile(target) &&
        !AskToLose(this, QStringLiteral("“%1”已经存在，它不是本系统的备份。要替换它吗？")
                             .arg(ToQt(target.filename().string())))) {
        return;
    }
    progress_->Run([&](const TableProgress& progress) {
        BackupMainStore(App().Main(), App().folder / kTemplateStoreName, target, progress);
    });
    RememberFolder(Purpose(), folder);
    Tell(this, QStringLiteral("已备份完毕！"));
    accept();
}

}  // namespace kalvane
