#include "unit/test_window.h"

TestWindow window_a("tstA");
TestWindow window_b("tstB");
TestWindow window_c("tstC");

TestWindow::TestWindow(const char* window_name) : Window(window_name, window_name, 6000, 4000) {
    key_preview = true;
    Add(entry, "entry", -1, nullptr, {0, 0, 1000, 300});
    Add(note, "note", -1, nullptr, {0, 400, 1000, 300});
    Add(ok, "ok", -1, nullptr, {0, 800, 1000, 300});
    Add(first, "first", -1, nullptr, {0, 1200, 1000, 300});
    Add(second, "second", -1, nullptr, {0, 1600, 1000, 300});
    Add(group, "group", -1, nullptr, {1200, 0, 2000, 2000});
    Add(third, "third", -1, &group, {0, 0, 1000, 300});
    Add(tick, "tick", -1, &group, {0, 400, 1000, 300});
    Add(tabs, "tabs", -1, nullptr, {3400, 0, 2000, 2000});
    for (int page = 0; page < 2; ++page) {
        Add(on_tab[page], "on_tab", page, &tabs, {0, 400, 1000, 300});
        on_tab[page].page = page;
    }
    Add(list, "list", -1, nullptr, {0, 2000, 1000, 300});
    Add(slider, "slider", -1, nullptr, {0, 2400, 1000, 300});
    Add(scroll, "scroll", -1, nullptr, {0, 2800, 1000, 300});
    Add(arrows, "arrows", -1, nullptr, {0, 3200, 1000, 300});
    Add(picture, "picture", -1, nullptr, {1200, 2400, 1000, 1000});
    Add(file, "file", -1, nullptr, {});
    Add(save, "save", -1, &file, {});
    Add(more, "more", -1, &file, {});
    Add(deep, "deep", -1, &more, {});
    Add(popup, "popup", -1, nullptr, {});
    Add(copy, "copy", -1, &popup, {});
    popup.SetVisible(false);
    list.AddItem("one");
    list.AddItem("two");
    FirstFocus(entry);
    KeepDesign();
}

namespace {
void Forget(Control& control) {
    for (Event<>* event : {&control.Click, &control.DoubleClick, &control.Change, &control.GotFocus, &control.LostFocus}) event->Calls({});
    for (Event<int>* event : {&control.KeyDown, &control.KeyUp}) event->Calls({});
    for (Event<Mouse>* event : {&control.MouseDown, &control.MouseMove, &control.MouseUp}) event->Calls({});
    control.BindView(nullptr);
}
}  // namespace

void ForgetTestWindows() {
    for (TestWindow* window : {&window_a, &window_b, &window_c}) {
        for (Event<>* event : {&window->Loaded, &window->Unloading, &window->Activated, &window->FrameClosed, &window->Resized})
            event->Calls({});
        for (Event<int>* event : {&window->KeyDown, &window->KeyUp}) event->Calls({});
        for (Event<Mouse>* event : {&window->MouseDown, &window->MouseMove}) event->Calls({});
        window->list.Edited.Calls({});
        window->arrows.UpClick.Calls({});
        window->arrows.DownClick.Calls({});
        for (Control* control : window->Controls()) Forget(*control);
        window->Load();
        window->Unload();
    }
}
