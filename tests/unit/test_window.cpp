#include "unit/test_window.h"

#include "platform/window_table.h"

TestWindow window_a("tstA");
TestWindow window_b("tstB");
TestWindow window_c("tstC");

TestWindow::TestWindow(const char* window_name) : Window(window_name, window_name, 6000, 4000) {
    key_preview = true;
    Lay({
        {entry, "entry", nullptr, {0, 0, 1000, 300}},
        {note, "note", nullptr, {0, 400, 1000, 300}},
        {ok, "ok", nullptr, {0, 800, 1000, 300}},
        {first, "first", nullptr, {0, 1200, 1000, 300}},
        {second, "second", nullptr, {0, 1600, 1000, 300}},
        {group, "group", nullptr, {1200, 0, 2000, 2000}},
        {third, "third", &group, {0, 0, 1000, 300}},
        {tick, "tick", &group, {0, 400, 1000, 300}},
        {tabs, "tabs", nullptr, {3400, 0, 2000, 2000}},
        {on_tab[0], {"on_tab", 0}, &tabs, {0, 400, 1000, 300}},
        {on_tab[1], {"on_tab", 1}, &tabs, {0, 400, 1000, 300}},
        {list, "list", nullptr, {0, 2000, 1000, 300}},
        {slider, "slider", nullptr, {0, 2400, 1000, 300}},
        {scroll, "scroll", nullptr, {0, 2800, 1000, 300}},
        {arrows, "arrows", nullptr, {0, 3200, 1000, 300}},
        {picture, "picture", nullptr, {1200, 2400, 1000, 1000}},
    });
    LayMenus({
        {file, "file", nullptr, ""},
        {save, "save", &file, ""},
        {more, "more", &file, ""},
        {deep, "deep", &more, ""},
        {popup, "popup", nullptr, "", kHidden},
        {copy, "copy", &popup, ""},
    });
    for (int page = 0; page < 2; ++page) on_tab[page].page = page;
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
    mouse_hold = {};
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
