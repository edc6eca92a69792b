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
    Label Label4[kNamedKeys];      // names of the keys
    TextBox Text1[kNamedKeys];     // their codes
    Button Command1;               // OK

    float AllKnown = 0;  // 1: the keyboard was known when the window came up

private:
    void LayKey(int key);
    void ForgetMembers() override { AllKnown = 0; }
};

extern InitialWindow frmInitial;
