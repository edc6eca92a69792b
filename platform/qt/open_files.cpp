#include "platform/qt/open_files.h"

#include <QApplication>
#include <algorithm>
#include <iostream>

#include "platform/qt/qt_dialogs.h"
#include "platform/qt/renderer.h"
#include "platform/qt/style.h"

#ifndef Q_OS_WIN
#include <sys/resource.h>
#endif

namespace {
// A session with sounds holds 21 of them, with a dialog 25; a sound server takes some more, and so do fonts and plug-ins for moments.
constexpr std::size_t kNeeded = 64;
constexpr std::size_t kForMessage = 32;
constexpr std::size_t kUsual = 1024;

// How many there may be, after all that could be done.
std::size_t Raised() {
#ifdef Q_OS_WIN
    return kUsual;  // nothing sets it lower
#else
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return kUsual;
    const rlimit raised{std::clamp<rlim_t>(kUsual, limit.rlim_cur, limit.rlim_max), limit.rlim_max};
    const bool is_raised = setrlimit(RLIMIT_NOFILE, &raised) == 0;
    return is_raised ? raised.rlim_cur : limit.rlim_cur;
#endif
}
}  // namespace

std::string LackOfOpenFiles() {
    const std::size_t allowed = Raised();
    if (allowed >= kNeeded) return "";
    return "Marlbrook needs " + std::to_string(kNeeded) + " open files at a time. The system allows it " + std::to_string(allowed) +
           ": raise that limit and start it again.";
}

void TellLackOfOpenFiles(const std::string& lack, char** argv) {
    std::cerr << "marlbrook: " << lack << "\n";
    if (Raised() < kForMessage) return;
    int argc = 1;  // no command line is read
    QApplication application(argc, argv);
    ApplyLook(application);
    Renderer renderer;
    QtMessageBoxes(renderer).Show({"Marlbrook", lack, Icon::Exclamation, Buttons::Ok});
}
