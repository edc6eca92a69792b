// frmNext: the window that the program starts with, and the one that adds a sample. Its start face offers to create a sheet or open
// one; its sample face takes the name, the note and the Additional info of a sample.
#pragma once
#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/window.h"
#include "sheet/sizes.h"

struct NextWindow : Window {
    NextWindow();

    Frame Frame2;  // start face
    PictureBox Picture1;
    Label Label5[2];
    Button Command4;  // create
    Button Command2;  // open

    Frame Frame1;  // sample face
    Label Label1, Label2;
    TextBox Text1;              // name
    TextBox Text2;              // note
    Label Label3[kParams + 1];  // [0] unused, so below
    TextBox Text3[kParams + 1];
    Button Command5[kParams + 1];  // rename
    Button Command1;               // OK
    Button Command3;               // Cancel

private:
    void LayParam(int p);
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
