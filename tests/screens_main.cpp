#include <gtest/gtest.h>

#include <QApplication>

#include "ui/application.h"

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    kalvane::PrepareApplication(application);
    return RUN_ALL_TESTS();
}
