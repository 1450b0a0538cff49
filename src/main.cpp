#include <QApplication>
#include <filesystem>

#include "app/instance_lock.h"
#include "app/run_marker.h"
#include "app/screens/MDIMain.h"
#include "app/screens/frmLogin.h"
#include "app/screens/frmSetup.h"
#include "app/startup.h"
#include "app/store_setup.h"
#include "platform/settings_store.h"
#include "session/app_state.h"
#include "store/dated_copies.h"
#include "ui/application.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/screen_memory.h"
#include "ui/text.h"

using namespace kalvane;

/// Login, splash, main screen. The start-up folder, where the stores lie, is the current one.
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    PrepareApplication(application);
    SettingsStore settings(SettingsStore::DefaultFile());
    App().settings = &settings;
    Guarded(nullptr, [&settings] {
        App().folder = std::filesystem::current_path();
        UseScreenMemory(&settings, ToQt(App().folder.string()));
        MessageNotice notice(nullptr);
        WarnOfReadOnlyFolder(App(), notice);
        CreateMissingStores(App().folder);
    });
    RunMarker run(App().folder);
    App().checkStores = run.Exists();

    frmLogin().exec();
    if (!App().loginOK) return 0;

    InstanceLock lock(App().folder);
    if (frmSetup(lock).exec() != QDialog::Accepted) return 0;

    run.Set();
    RemoveUnfinishedFiles(App().folder);

    MDIMain frame;
    frame.Load();
    frame.show();
    const int result = QApplication::exec();
    if (App().storesAreDoubtful) run.Keep();
    return result;
}
