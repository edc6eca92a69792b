#include "events/join.h"
#include "keys/first_run.h"
#include "windows/key_windows.h"

void JoinInitialEvents() {
    frmInitial.Loaded.Calls(LoadInitialWindow);
    frmInitial.FrameClosed.Calls(CloseInitialByFrame);
    frmInitial.OkButton.Click.Calls(AcceptNamedKeys);
    for (int key = 0; key < kNamedKeys; ++key) {
        frmInitial.KeyCodes[key].GotFocus.Calls([key] { EmptyNamedKey(key); });
        frmInitial.KeyCodes[key].KeyDown.Calls([key](int code) { TakeNamedKey(key, code); });
    }
}
