// Windows that belong to no program, for tests of what all windows share. Windows live as long as the process and must not be locals.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/window.h"

struct TestWindow : Window {
    explicit TestWindow(const char* window_name);

    TextBox entry, note;
    Button ok;
    OptionButton first, second, third;  // the third in a frame of its own
    Frame group;
    TabControl tabs;
    TextBox on_tab[2];
    ComboBox list;
    CheckBox tick;
    Slider slider;
    ScrollBar scroll;
    UpDown arrows;
    PictureBox picture;
    MenuItem file, save, more, deep;  // "more" is a menu inside "file"
    MenuItem popup, copy;             // hidden from the bar
};

extern TestWindow window_a, window_b, window_c;

// Unloads the three and lets go of what was joined to their events.
void ForgetTestWindows();

// Notes which properties a control has told its view of.
class ViewRecorder : public ControlView {
public:
    std::vector<Property> told;
    void Changed(Property property) override { told.push_back(property); }
    std::vector<Property> Take() { return std::exchange(told, {}); }
};
