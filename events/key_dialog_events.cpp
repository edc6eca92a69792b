#include "events/join.h"
#include "keys/first_run.h"
#include "keys/key_dialog.h"
#include "keys/key_dialog_capture.h"
#include "keys/key_dialog_ok.h"
#include "session/state/sheet_state.h"

namespace {
void JoinDefinition(KeyCodeWindow& window, int key) {
    TextBox& box = window.Definitions[key];
    box.GotFocus.Calls([key] { EnterDefinition(key); });
    box.KeyDown.Calls([key](int code) { CaptureDefinitionKey(key, code); });
    box.Change.Calls([key] { CheckDefinition(key); });
    box.KeyUp.Calls([key](int code) { NameDefinition(key, code); });
    box.LostFocus.Calls([key] { LeaveDefinition(key); });
}

void JoinFunctional(KeyCodeWindow& window, int key) {
    TextBox& box = window.FunctionalBoxes[key];
    box.GotFocus.Calls([key] { EnterFunctional(key); });
    box.KeyDown.Calls([key](int code) { CaptureFunctionalKey(key, code); });
    box.KeyUp.Calls([key](int code) { NameFunctional(key, code); });
    box.LostFocus.Calls([key] { LeaveFunctional(key); });
}

void JoinKeyNumber(KeyCodeWindow& window, int place) {
    window.KeyNumbers[place].GotFocus.Calls([place] { EnterKeyNumber(place); });
    window.KeyNumbers[place].LostFocus.Calls([place] { LeaveKeyNumber(place); });
}
}  // namespace

void JoinInitialEvents(InitialWindow& window) {
    window.Loaded.Calls(LoadInitialWindow);
    window.FrameClosed.Calls(CloseInitialByFrame);
    window.OkButton.Click.Calls(AcceptNamedKeys);
    for (int key = 0; key < kNamedKeys; ++key) {
        window.KeyCodes[key].GotFocus.Calls([key] { EmptyNamedKey(key); });
        window.KeyCodes[key].KeyDown.Calls([key](int code) { CaptureNamedKey(key, code); });
    }
}

void JoinKeyCodeEvents(KeyCodeWindow& window) {
    window.Loaded.Calls(FillKeyDialog);
    window.FrameClosed.Calls(CancelKeySettings);
    const auto leave_box_in_hand = [&window](Mouse) { window.OkButton.SetFocus(); };
    window.MouseDown.Calls(leave_box_in_hand);
    window.NumberMap.MouseDown.Calls(leave_box_in_hand);
    for (int key = 1; key <= kKeys; ++key) {
        JoinDefinition(window, key);
        JoinKeyNumber(window, key);
    }
    for (int key = 0; key <= kF1Box; ++key) JoinFunctional(window, key);
    for (int row = 1; row <= kMapRows; ++row) window.Codes[row].Change.Calls([row] { ShowCharacter(row); });
    window.MapTabs.Change.Calls(OfferDefault);
    window.LeftHanded.Click.Calls([] { MirrorMaps(1); });
    window.RightHanded.Click.Calls([] { MirrorMaps(-1); });
    window.CancelButton.Click.Calls(CancelKeySettings);
    window.ClearButton.Click.Calls(ClearOpenMap);
    window.NoticeButton.Click.Calls([] { frmNote.Show(); });
    window.OkButton.Click.Calls(AcceptKeySettings);
    window.DefaultButton.Click.Calls(NumberPlacesInOrder);
}
