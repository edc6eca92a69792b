#include "keys/first_run.h"

#include <string>

#include "keys/settings/key_settings.h"
#include "platform/control.h"
#include "platform/services.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "taxa/edit_boxes.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr int kFirstRow = 51;  // of the named keys in the key settings

Any& CodeOf(int key) {
    return KeySettings[kFirstRow + key][kKeyCode];
}

bool HoldsCode(TextBox& box) {
    if (Left(box.Text(), 1) == " ") box.SetText(Mid(box.Text(), 2, Length(box.Text())));
    return box.Number() != 0 && IsPlainNumber(box.Text());
}

bool AllBoxesHoldCodes() {
    bool all = true;
    for (TextBox& box : frmInitial.KeyCodes) all = HoldsCode(box) && all;
    return all;
}

void FocusOk() {
    if (frmInitial.OkButton.Enabled()) frmInitial.OkButton.SetFocus();
}

void FocusNext(int key) {
    TextBox& next = frmInitial.KeyCodes[key + 1];
    if (!next.Text().empty()) {
        FocusOk();
        return;
    }
    next.SetEnabled(true);
    frmInitial.KeyNames[key + 1].SetEnabled(true);
    next.SetFocus();
}

// The start face of frmNext may still wait, unseen.
void LeaveForCounting() {
    if (frmNext.IsLoaded() && frmNext.OpenButton.Visible()) frmNext.Unload();
    CloseDialog(frmInitial);
}

void LeaveToProgram() {
    if (frmInitial.AllKnown == 1) {
        LeaveForCounting();
        return;
    }
    frmInitial.Unload();
    frmMain.Show();
    frmNext.Show();
    frmInitial.AllKnown = 1;
}
}  // namespace

void LoadInitialWindow() {
    frmInitial.AllKnown = AreNamedKeysKnown() ? 1 : 0;
    const bool known = frmInitial.AllKnown == 1;
    for (int key = 0; key < kNamedKeys; ++key) {
        const bool usable = known || key == 0;  // a first run goes down the boxes one by one
        frmInitial.KeyCodes[key].SetText(known ? CodeOf(key).Text() : "");
        frmInitial.KeyCodes[key].SetEnabled(usable);
        frmInitial.KeyNames[key].SetEnabled(usable);
    }
    frmInitial.OkButton.SetEnabled(known);
    if (known) frmInitial.OkButton.SetFocus();  // a box would be emptied by the focus
}

void EmptyNamedKey(int key) {
    frmInitial.KeyCodes[key].SetText("");
}

void CaptureNamedKey(int key, int code) {
    TextBox& box = frmInitial.KeyCodes[key];
    box.SetText(std::to_string(code));
    if (code == kDeleteKey) PutCaretBehind(box);  // it would take the first digit of its own code away
    if (key < kNamedKeys - 1) {
        FocusNext(key);
    } else {
        frmInitial.OkButton.SetEnabled(true);
        frmInitial.OkButton.SetFocus();
    }
}

void AcceptNamedKeys() {
    if (!AllBoxesHoldCodes()) {
        services.messages->Show({"Error", "Please fill all boxes.", Icon::None, Buttons::Ok});
        return;
    }
    for (int key = 0; key < kNamedKeys; ++key) CodeOf(key) = frmInitial.KeyCodes[key].Number();
    WriteKeySettings();
    PlayIfOn(WaveSave);
    LeaveToProgram();
}

void CloseInitialByFrame() {
    LeaveForCounting();
}
