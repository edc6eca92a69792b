#include "events/join.h"
#include "keys/first_run.h"
#include "keys/key_dialog.h"
#include "keys/key_dialog_capture.h"
#include "keys/key_dialog_ok.h"
#include "session/state/sheet_state.h"
#include "windows/initial_window.h"
#include "windows/key_code_window.h"
#include "windows/note_window.h"

namespace {
void JoinDefinition(int key) {
    TextBox& box = frmKeyCode.Definitions[key];
    box.GotFocus.Calls([key] { EnterDefinition(key); });
    box.KeyDown.Calls([key](int code) { TakeDefinitionKey(key, code); });
    box.Change.Calls([key] { TakeDefinition(key); });
    box.KeyUp.Calls([key](int code) { NameDefinition(key, code); });
    box.LostFocus.Calls([key] { LeaveDefinition(key); });
}

void JoinFunctional(int key) {
    TextBox& box = frmKeyCode.FunctionalBoxes[key];
    box.GotFocus.Calls([key] { EnterFunctional(key); });
    box.KeyDown.Calls([key](int code) { TakeFunctionalKey(key, code); });
    box.KeyUp.Calls([key](int code) { NameFunctional(key, code); });
    box.LostFocus.Calls([key] { LeaveFunctional(key); });
}

void JoinKeyNumber(int place) {
    frmKeyCode.KeyNumbers[place].GotFocus.Calls([place] { EnterKeyNumber(place); });
    frmKeyCode.KeyNumbers[place].LostFocus.Calls([place] { LeaveKeyNumber(place); });
}

void LeaveBoxInHand(Mouse) {
    frmKeyCode.OkButton.SetFocus();
}
}  // namespace

void JoinInitialEvents() {
    frmInitial.Loaded.Calls(LoadInitialWindow);
    frmInitial.FrameClosed.Calls(CloseInitialByFrame);
    frmInitial.OkButton.Click.Calls(AcceptNamedKeys);
    for (int key = 0; key < kNamedKeys; ++key) {
        frmInitial.KeyCodes[key].GotFocus.Calls([key] { EmptyNamedKey(key); });
        frmInitial.KeyCodes[key].KeyDown.Calls([key](int code) { TakeNamedKey(key, code); });
    }
}

void JoinKeyCodeEvents() {
    frmKeyCode.Loaded.Calls(FillKeyDialog);
    frmKeyCode.FrameClosed.Calls(CancelKeySettings);
    frmKeyCode.MouseDown.Calls(LeaveBoxInHand);
    frmKeyCode.NumberMap.MouseDown.Calls(LeaveBoxInHand);
    for (int key = 1; key <= kKeys; ++key) {
        JoinDefinition(key);
        JoinKeyNumber(key);
    }
    for (int key = 0; key <= kF1Box; ++key) JoinFunctional(key);
    for (int row = 1; row <= kMapRows; ++row) frmKeyCode.Codes[row].Change.Calls([row] { ShowCharacter(row); });
    frmKeyCode.MapTabs.Change.Calls(OfferDefault);
    frmKeyCode.LeftHanded.Click.Calls([] { MirrorMaps(1); });
    frmKeyCode.RightHanded.Click.Calls([] { MirrorMaps(-1); });
    frmKeyCode.CancelButton.Click.Calls(CancelKeySettings);
    frmKeyCode.ClearButton.Click.Calls(ClearOpenMap);
    frmKeyCode.NoticeButton.Click.Calls([] { frmNote.Show(); });
    frmKeyCode.OkButton.Click.Calls(AcceptKeySettings);
    frmKeyCode.DefaultButton.Click.Calls(NumberPlacesInOrder);
}
