#include "backup/screens/frmTools.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "backup/restore.h"
#include "backup/screens/copy_progress.h"
#include "backup/screens/frmSaveFile.h"
#include "numeric/error.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr int kButtonWidth = 380;
constexpr int kButtonHeight = 40;
}  // namespace

frmTools::frmTools(QWidget* parent)
    : Screen(QStringLiteral("frmTools"), QStringLiteral("数据库管理器"), parent),
      progress_(new CopyProgress(this)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* note = new QLabel(QStringLiteral("备份包含材料、图、窗型、工程和合同，不包含仓库和用户。\n"
                                           "还原会替换这些数据，还原之前的数据自动另存在\n"
                                           "文件夹“副本”里。"),
                            this);
    QPushButton* backup = MakeButton("CmdBackup", QStringLiteral("备份数据库 &B"), this);
    QPushButton* restore = MakeButton("CmdRestore", QStringLiteral("还原数据库 &R"), this);
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("退出 &Q"), this, QStringLiteral("Esc"));

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 20, 24, 16);
    rows->setSpacing(12);
    rows->addWidget(note);
    for (QPushButton* button : {backup, restore}) {
        button->setMinimumSize(kButtonWidth, kButtonHeight);
        rows->addWidget(button);
    }
    rows->addLayout(ButtonRow({exit}, progress_));
    rows->setSizeConstraint(QLayout::SetFixedSize);

    OnSignal(backup, &QPushButton::clicked, this, [this] { Backup(); });
    OnSignal(restore, &QPushButton::clicked, this, [this] { Restore(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
}

void frmTools::Backup() {
    frmSaveFile(this).exec();
}

void frmTools::Restore() {
    const QString file =
        UseDialogs().OpenFileName(this, frmSaveFile::Purpose(), QStringLiteral("打开数据库(*.MBK)|*.MBK"));
    if (file.isEmpty()) return;
    MessageNotice notice(this);
    try {
        progress_->Run([&](const TableProgress& progress) {
            RestoreMainStore(App().Main(), FromQt(file), progress, notice);
        });
    } catch (const StoreDamage&) {
        App().storesAreDoubtful = true;  // so that the next start checks, and offers a copy
        throw;
    }
}

}  // namespace kalvane
