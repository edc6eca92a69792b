// frmNext: the window that the program starts with, and the one that adds a sample. Its start face offers to create a sheet or open
// one; its sample face takes the name, the note and the Additional info of a sample.
#pragma once
#include <string>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/window.h"
#include "sheet/sizes.h"

// What the line of the start face tells, the graver the later.
enum class StartNews { None, BrokenWave, NoSoundDevice, LostSession };

struct NextWindow : Window {
    NextWindow();

    Frame Frame2;
    Frame& StartFace = Frame2;
    PictureBox Picture1;
    Label Label5[2];
    Label& StartLine = Label5[1];  // what the program is for, or the gravest news
    Button Command4;
    Button& CreateButton = Command4;
    Button Command2;
    Button& OpenButton = Command2;
    Button Command6;
    Button& ManualButton = Command6;  // where the manual is installed

    Frame Frame1;
    Frame& SampleFace = Frame1;
    Label Label1, Label2;
    Label& SampleNameCaption = Label1;
    TextBox Text1;
    TextBox& SampleName = Text1;
    TextBox Text2;
    TextBox& SampleNote = Text2;
    Label Label3[kParams + 1];  // [0] unused, so below
    Label (&ParamNames)[kParams + 1] = Label3;
    TextBox Text3[kParams + 1];
    TextBox (&ParamBoxes)[kParams + 1] = Text3;
    Button Command5[kParams + 1];
    Button (&RenameButtons)[kParams + 1] = Command5;
    Button Command1;
    Button& OkButton = Command1;
    Button Command3;
    Button& CancelButton = Command3;

    void TellOnStartFace(StartNews news, const std::string& text);  // unless it tells graver news
    void ForgetMembers() override { told_ = StartNews::None; }

private:
    void LayParam(int p);

    StartNews told_ = StartNews::None;
};

// The two faces are one window in three heights.
constexpr int kNextWidth = 7200;
constexpr int kStartFaceHeight = 2560;
constexpr int kSampleFaceHeight = 4060;
constexpr int kOkRowHeight = 780;
constexpr int kBothFacesHeight = kStartFaceHeight + kSampleFaceHeight + kOkRowHeight;
constexpr int kOkLeft = 4100;  // beside Cancel, both below the boxes
constexpr int kCancelLeft = 5480;

extern NextWindow frmNext;
