// The desktop program.
#include "platform/qt/desktop.h"

int main(int argc, char** argv) {
    return RunDesktop(argc, argv);
}
