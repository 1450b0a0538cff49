#include <QGuiApplication>
#include <cstdlib>

// Ends with 0 where a window can be shown on the display of the environment, and with 1 where not.

int main(int argc, char* argv[]) {
    // Qt aborts a program that none of its platforms can serve.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
        if (type == QtFatalMsg) std::_Exit(1);
    });
    const QGuiApplication application(argc, argv);
    return 0;
}
