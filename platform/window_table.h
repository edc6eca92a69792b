// A window as tables: a row a control, from the back to the front, which is also the order of Tab. Places are in twips, in the container.
//
//     Lay({
//         {Frame1, "Frame1", nullptr, {120, 120, 6960, 1200}, "Sample"},
//         {Label1, "Label1", &Frame1, {200, 350, 2600, 280}, "Name:", kQuiet},
//         {Text1[0], {"Text1", 0}, &Frame1, {2900, 320, 3860, 330}, "---", kPlain, "", &Label1},
//     });
//     LayMenus({
//         {mnuFile, "mnuFile", nullptr, "&File"},
//         {mnuSave, "mnuSave", &mnuFile, "Save"},
//     });
#pragma once
#include <optional>
#include <string>

#include "platform/controls.h"

struct Style {
    double points = 9;
    bool bold = false;
    Colour fore = kBlack;
    std::optional<Colour> back = {};  // nullopt: the colour of its kind
    bool visible = true;
    bool enabled = true;
    bool tab_stop = true;
};

constexpr Style kPlain;
constexpr Style kHidden{.visible = false};

struct ControlName {
    ControlName(const char* its_name, int its_index = -1) : name(its_name), index(its_index) {}
    const char* name;
    int index;  // -1: not of an array
};

struct ControlRow {
    Control& control;
    ControlName name;
    Control* container;  // nullptr: the window itself
    Box place;
    std::string caption = {};  // of a box: its text
    Style style = {};
    std::string accessible_name = {};
    Control* named_by = nullptr;
};

struct MenuRow {
    MenuItem& item;
    ControlName name;
    MenuItem* menu;  // nullptr: it is a menu of the bar itself, or hidden: one that pops up
    std::string caption;
    Style style = {};
};
