// frmInitial: learns what the twelve named keys of this keyboard send.
#pragma once
#include "platform/controls.h"
#include "platform/window.h"

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
