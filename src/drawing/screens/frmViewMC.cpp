#include "drawing/screens/frmViewMC.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QStorageInfo>

#include "drawing/screens/drawing_box.h"
#include "platform/settings_store.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(900, 540);
constexpr int kFilesWidth = 240;
const QString kParent = QStringLiteral("..");

bool IsDrawing(const QString& file) {
    return file.right(3).toUpper() == QStringLiteral(".MC");
}

QString FirstFolder() {
    const QString set =
        ToQt(App().settings->Read(kSettingsApplication, kSectionMain, "PICTUREPATH", "C:\\My Documents"));
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& folder : {set, documents}) {
        if (QDir(folder).exists()) return folder;
    }
    return ToQt(App().folder.string());
}

}  // namespace

frmViewMC::frmViewMC(QWidget* parent)
    : EntryScreen(QStringLiteral("frmViewMC"), QStringLiteral("选择门窗图文件"), parent),
      drive_(new QComboBox),
      folderLabel_(new QLabel),
      folders_(new QListWidget),
      files_(new QListWidget),
      picture_(new DrawingBox(QStringLiteral("PicMC"))) {
    drive_->setObjectName(QStringLiteral("Drive1"));
    folders_->setObjectName(QStringLiteral("Dir1"));
    files_->setObjectName(QStringLiteral("File1"));
    drive_->setPlaceholderText(QStringLiteral("选择位置"));
    drive_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // as wide as the list below
    files_->setMinimumWidth(kFilesWidth);
    folderLabel_->setWordWrap(true);
    folderLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);
    ok->setDefault(true);

    auto* body = new QWidget;
    auto* places = new QGridLayout(body);
    places->setContentsMargins({});
    places->addWidget(drive_, 0, 0);
    places->addWidget(folderLabel_, 0, 1, 1, 2);
    places->addWidget(folders_, 1, 0);
    places->addWidget(files_, 1, 1);
    places->addWidget(picture_, 1, 2);
    places->setColumnStretch(0, 3);
    places->setColumnStretch(1, 4);
    places->setColumnStretch(2, 7);
    LayOutAboveButtons(this, body, {ok, cancel});
    resize(kFirstSize);

    FillDrives();
    OnSignal(drive_, &QComboBox::activated, this, [this] { EnterFolder(drive_->currentData().toString()); });
    OnSignal(folders_, &QListWidget::itemDoubleClicked, this, [this] { EnterSelectedFolder(); });
    OnSignal(files_, &QListWidget::itemSelectionChanged, this, [this] { ShowPicture(); });
    OnSignal(files_, &QListWidget::itemDoubleClicked, this, [this] { Confirm(); });
    OnEnter(folders_, [this] { EnterSelectedFolder(); });
    OnEnter(files_, [this] { Confirm(); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    EnterFolder(FirstFolder());
    files_->setFocus();
}

void frmViewMC::FillDrives() {
    const auto add = [this](const QString& name, const QString& folder) {
        if (QDir(folder).exists() && drive_->findData(folder) < 0) drive_->addItem(name, folder);
    };
    add(QStringLiteral("文档"), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    add(QStringLiteral("程序文件夹"), ToQt(App().folder.string()));
    add(QStringLiteral("主文件夹"), QDir::homePath());
    add(QStringLiteral("计算机"), QDir::rootPath());
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        // What is plugged in or mounted by hand; the others are parts of the system.
        const QString root = volume.rootPath();
        const bool isPlace = root.startsWith(QStringLiteral("/media/")) ||
                             root.startsWith(QStringLiteral("/run/media/")) ||
                             root.startsWith(QStringLiteral("/mnt"));
        if (volume.isReady() && isPlace) add(volume.displayName(), root);
    }
    drive_->setCurrentIndex(-1);
}

void frmViewMC::EnterFolder(const QString& folder) {
    const QDir dir(folder);
    folder_ = dir.absolutePath();
    folderLabel_->setText(folder_);
    folders_->clear();
    if (!dir.isRoot()) folders_->addItem(kParent);
    folders_->addItems(dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    files_->clear();
    files_->addItems(dir.entryList(QDir::Files, QDir::Name | QDir::IgnoreCase));
    picture_->Clear();
}

void frmViewMC::EnterSelectedFolder() {
    const QListWidgetItem* folder = folders_->currentItem();
    if (folder == nullptr) return;
    EnterFolder(PathOf(folder->text()));
    folders_->setCurrentRow(0);
}

QString frmViewMC::SelectedFile() const {
    const QList<QListWidgetItem*> selected = files_->selectedItems();
    return selected.isEmpty() ? QString() : selected.front()->text();
}

QString frmViewMC::PathOf(const QString& file) const {
    const QString separator = QStringLiteral("/");
    return folder_ + (folder_.endsWith(separator) ? QString() : separator) + file;
}

void frmViewMC::ShowPicture() {
    picture_->Clear();
    const QString file = SelectedFile();
    if (IsDrawing(file)) picture_->ShowFile(FromQt(PathOf(file)));
}

void frmViewMC::Confirm() {
    const QString file = SelectedFile();
    if (file.isEmpty()) return Tell(this, QStringLiteral("无选取图形文件"));
    if (!IsDrawing(file)) return Tell(this, QStringLiteral("无效的图型文件"));
    resultPath_ = PathOf(file);
    accept();
}

}  // namespace kalvane
