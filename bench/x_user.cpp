#include "bench/x_user.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <cstdio>
#include <cstdlib>

namespace {
Display* AsDisplay(void* display) {
    return static_cast<Display*>(display);
}
}  // namespace

XUser::XUser() : display_(XOpenDisplay(nullptr)) {
    if (display_) return;
    std::fputs("window_bench: there is no X display; use bench/window_bench.sh\n", stderr);
    std::exit(1);
}

XUser::~XUser() {
    XCloseDisplay(AsDisplay(display_));
}

void XUser::Stroke(int key_code) {
    XTestFakeKeyEvent(AsDisplay(display_), static_cast<unsigned>(key_code), True, CurrentTime);
    XTestFakeKeyEvent(AsDisplay(display_), static_cast<unsigned>(key_code), False, CurrentTime);
    XFlush(AsDisplay(display_));
}

void XUser::MoveMouse(int x, int y) {
    XTestFakeMotionEvent(AsDisplay(display_), -1, x, y, CurrentTime);
    XFlush(AsDisplay(display_));
}

void XUser::PressMouse(bool down) {
    XTestFakeButtonEvent(AsDisplay(display_), 1, down ? True : False, CurrentTime);
    XFlush(AsDisplay(display_));
}

void WaitForServer(void* display) {
    XSync(AsDisplay(display), False);
}
