// The windows of the keys. frmInitial learns what the twelve named keys of this keyboard send.
//
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

constexpr int kNamedKeys = 12;
constexpr int kWelcomeLabels = 7;

struct InitialWindow : Window {
    InitialWindow();

    Label Label1[kWelcomeLabels];  // the words of welcome
    Label Label2[2];               // heads of the two columns
    Label Label4[kNamedKeys];
    Label (&KeyNames)[kNamedKeys] = Label4;
    TextBox Text1[kNamedKeys];
    TextBox (&KeyCodes)[kNamedKeys] = Text1;
    Button Command1;
    Button& OkButton = Command1;

    float AllKnown = 0;  // 1: the keyboard was known when the window came up

    // The members that hold no control, as ForEachSheetVariable.
    template <class Visit>
    void ForEachVariable(Visit visit) {
        visit("AllKnown", AllKnown);
    }

private:
    void LayKey(int key);
    void ForgetMembers() override { AllKnown = 0; }
};

extern InitialWindow frmInitial;

constexpr int kMapRows = 50;        // rows of the key settings that the maps show
constexpr int kFunctionalKeys = 4;  // Shift-1, Shift-2, Undo, Save
constexpr int kFunctionalRows[kFunctionalKeys] = {46, 47, 49, 50};
constexpr int kSecondShift1 = 48;  // the row that is as that of Shift-1
constexpr int kF1Box = 4;          // the box of Text4 that takes the F1 key

struct KeyCodeWindow : Window {
    KeyCodeWindow();

    TabControl SSTab1;
    TabControl& MapTabs = SSTab1;
    Frame Frame1, Frame2, Frame3;
    Frame& DefinitionMap = Frame1;
    Frame& CodeMap = Frame2;
    Frame& NumberMap = Frame3;
    TextBox Text1[kMapRows + 1];
    TextBox (&Definitions)[kMapRows + 1] = Text1;  // by pressing a key in the box
    TextBox Text2[kMapRows + 1];
    TextBox (&Codes)[kMapRows + 1] = Text2;
    TextBox Text3[kMapRows + 1];
    TextBox (&KeyNumbers)[kMapRows + 1] = Text3;  // [place]

    Frame Frame4;
    Frame& FunctionalFrame = Frame4;
    Label Label5;
    Label Label6[kFunctionalKeys];
    TextBox Text4[kFunctionalKeys + 1];
    TextBox (&FunctionalBoxes)[kFunctionalKeys + 1] = Text4;
    TextBox& Shift1Box = Text4[0];
    TextBox& UndoBox = Text4[2];
    TextBox& SaveBox = Text4[3];
    Button Command3;
    Button& NoticeButton = Command3;
    Label Label7;  // beside the box of F1

    OptionButton Option1[2];
    OptionButton (&HandOptions)[2] = Option1;
    OptionButton& LeftHanded = Option1[0];
    OptionButton& RightHanded = Option1[1];
    Label Label1, Label2;  // "Key code: " and nothing behind it
    Label Label3, Label4;
    Label& CharacterCode = Label4;  // of the character typed last
    Button Command2;
    Button& ClearButton = Command2;
    Button Command5;
    Button& DefaultButton = Command5;  // belongs to the key numbers
    ProgressBar ProgressBar1;
    ProgressBar& Progress = ProgressBar1;  // seen while saving
    Button Command4;
    Button& OkButton = Command4;
    Button Command1;
    Button& CancelButton = Command1;

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
