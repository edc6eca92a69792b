// The desktop program.
#include <cstdlib>

#include "platform/qt/desktop.h"
#include "platform/qt/open_files.h"

int main(int argc, char** argv) {
    if (const std::string lack = LackOfOpenFiles(); !lack.empty()) {
        TellLackOfOpenFiles(lack, argv);
        return EXIT_FAILURE;
    }
    return RunDesktop(argc, argv);
}
