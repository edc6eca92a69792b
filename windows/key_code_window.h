// frmKeyCode: which key of the keyboard each counter key and each functional key is, and where the counter keys lie on the pad. Three
// maps of the pad, one a tab: what each key shows, its code, and the number of the key that lies at each place.
//
// The boxes of a map bear the rows of the key settings: 1..45 counter keys, 46 and 48 Shift-1, 47 Shift-2, 49 Undo, 50 Save. Index 0
// takes the heading row and is never seen.
#pragma once
#include <map>
#include <string>

#include "platform/any.h"
#include "platform/controls.h"
#include "platform/window.h"
#include "sheet/sizes.h"

constexpr int kMapRows = 50;        // rows of the key settings that the maps show
constexpr int kFunctionalKeys = 4;  // Shift-1, Shift-2, Undo, Save
constexpr int kFunctionalRows[kFunctionalKeys] = {46, 47, 49, 50};
constexpr int kSecondShift1 = 48;  // the row that is as that of Shift-1
constexpr int kF1Box = 4;          // the box of Text4 that takes the F1 key

struct KeyCodeWindow : Window {
    KeyCodeWindow();

    TabControl SSTab1;
    Frame Frame1, Frame2, Frame3;  // the ground of each map
    TextBox Text1[kMapRows + 1];   // definitions: by pressing a key in the box
    TextBox Text2[kMapRows + 1];   // codes
    TextBox Text3[kMapRows + 1];   // [place]: key number

    Frame Frame4;  // functional keys
    Label Label5;
    Label Label6[kFunctionalKeys];
    TextBox Text4[kFunctionalKeys + 1];
    Button Command3;  // Notice
    Label Label7;     // beside the box of F1

    OptionButton Option1[2];   // left handed, right handed
    Label Label1, Label2;      // "Key code: " and nothing behind it
    Label Label3, Label4;      // the character typed last, by its code
    Button Command2;           // All clear
    Button Command5;           // Default: belongs to the key numbers
    ProgressBar ProgressBar1;  // seen while saving
    Button Command4;           // OK
    Button Command1;           // Cancel

    std::string OldDefinition;              // what a box of a map held when it got the focus
    std::string OldCode;                    // the code beside it before the last key
    std::string OldFunctional;              // what a box of Text4 held when it got the focus
    std::map<int, std::string> Characters;  // what the keys type on the layout in use, by their codes
    Any SettingsAtOpening[kMapRows + 1][3];

private:
    void LayMaps();
    void LayCounterKey(int row);
    void LayFunctionalKey(int row);
    void LayBesideMaps();
    void LayBelowMaps();
    void ForgetMembers() override;
};

extern KeyCodeWindow frmKeyCode;
