#include "events/join.h"
#include "keys/key_dialog.h"
#include "keys/key_dialog_capture.h"
#include "keys/key_dialog_ok.h"
#include "session/state/sheet_state.h"
#include "windows/key_code_window.h"
#include "windows/note_window.h"

namespace {
void JoinDefinition(int key) {
    TextBox& box = frmKeyCode.Text1[key];
    box.GotFocus.Calls([key] { EnterDefinition(key); });
    box.KeyDown.Calls([key](int code) { TakeDefinitionKey(key, code); });
    box.Change.Calls([key] { TakeDefinition(key); });
    box.KeyUp.Calls([key](int code) { NameDefinition(key, code); });
    box.LostFocus.Calls([key] { LeaveDefinition(key); });
}

void JoinFunctional(int key) {
    TextBox& box = frmKeyCode.Text4[key];
    box.GotFocus.Calls([key] { EnterFunctional(key); });
    box.KeyDown.Calls([key](int code) { TakeFunctionalKey(key, code); });
    box.KeyUp.Calls([key](int code) { NameFunctional(key, code); });
    box.LostFocus.Calls([key] { LeaveFunctional(key); });
}

void JoinKeyNumber(int place) {
    frmKeyCode.Text3[place].GotFocus.Calls([place] { EnterKeyNumber(place); });
    frmKeyCode.Text3[place].LostFocus.Calls([place] { LeaveKeyNumber(place); });
}

void LeaveBoxInHand(Mouse) {
    frmKeyCode.Command4.SetFocus();
}
}  // namespace

void JoinKeyCodeEvents() {
    frmKeyCode.Loaded.Calls(FillKeyDialog);
    frmKeyCode.FrameClosed.Calls(CancelKeySettings);
    frmKeyCode.MouseDown.Calls(LeaveBoxInHand);
    frmKeyCode.Frame3.MouseDown.Calls(LeaveBoxInHand);
    for (int key = 1; key <= kKeys; ++key) {
        JoinDefinition(key);
        JoinKeyNumber(key);
    }
    for (int key = 0; key <= kF1Box; ++key) JoinFunctional(key);
    for (int row = 1; row <= kMapRows; ++row) frmKeyCode.Text2[row].Change.Calls([row] { ShowCharacter(row); });
    frmKeyCode.SSTab1.Change.Calls(OfferDefault);
    frmKeyCode.Option1[0].Click.Calls([] { MirrorMaps(1); });
    frmKeyCode.Option1[1].Click.Calls([] { MirrorMaps(-1); });
    frmKeyCode.Command1.Click.Calls(CancelKeySettings);
    frmKeyCode.Command2.Click.Calls(ClearOpenMap);
    frmKeyCode.Command3.Click.Calls([] { frmNote.Show(); });
    frmKeyCode.Command4.Click.Calls(AcceptKeySettings);
    frmKeyCode.Command5.Click.Calls(NumberPlacesInOrder);
}
