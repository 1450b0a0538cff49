#include <QApplication>
#include <QWidget>

/// The peer of the program's start: an empty window, shown.
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QWidget window;
    window.setObjectName("frmLogin");
    window.show();
    return QApplication::exec();
}
