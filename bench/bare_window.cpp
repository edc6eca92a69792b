// A window of the toolkit with nothing in it: what its start and its memory take is the least that the program's can.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("Bare window");
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
